// Loaded into a program with LD_PRELOAD, makes calls on one file fail. The environment controls it: VIF_TEST_FILE is
// the name of the file. Calls of the kind VIF_TEST_CALL ("stat", "open", "status" or "read") fail with the error number
// VIF_TEST_ERROR, from the VIF_TEST_FROM-th call on, counted from 1; reading fails after VIF_TEST_READABLE bytes. A
// read returns at most VIF_TEST_PIECE bytes. Just before its VIF_TEST_PIPE-th opening, the file becomes a pipe.
#include "files/FileCalls.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace {

using testsupport::FileCall;
using testsupport::FileCallFate;

constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

std::size_t Number(const char* name, std::size_t otherwise) {
  const std::string text = Variable(name);
  return text.empty() ? otherwise : std::strtoul(text.c_str(), nullptr, 10);
}

class CScript {
 public:
  FileCallFate operator()(const FileCall& call) const {
    constexpr std::string_view kinds[] = {"stat", "open", "status", "read"};
    if (call.kind == FileCall::Kind::Open && call.number == m_pipe) TurnIntoAPipe();
    if (m_call == kinds[static_cast<std::size_t>(call.kind)] && call.number >= m_from && call.position >= m_readable) {
      return {m_error, 0};
    }
    const bool isBounded = call.position < m_readable && m_call == "read";
    return {0, std::min(m_piece, isBounded ? m_readable - call.position : kNever)};
  }

 private:
  void TurnIntoAPipe() const {
    std::remove(m_file.c_str());
    mkfifo(m_file.c_str(), S_IRUSR | S_IWUSR);
  }

  std::string m_file = Variable("VIF_TEST_FILE");
  std::string m_call = Variable("VIF_TEST_CALL");
  int m_error = static_cast<int>(Number("VIF_TEST_ERROR", 0));
  std::size_t m_from = Number("VIF_TEST_FROM", 1);
  std::size_t m_readable = Number("VIF_TEST_READABLE", 0);
  std::size_t m_piece = Number("VIF_TEST_PIECE", kNever);
  std::size_t m_pipe = Number("VIF_TEST_PIPE", 0);
};

const testsupport::CFileCalls g_calls(Variable("VIF_TEST_FILE"), CScript());

}  // namespace
