#include "ScratchDirectory.h"

#include "Checks.h"

#include <string>
#include <system_error>

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkdtemp is not in the standard library

namespace fuzz {

CScratchDirectory::CScratchDirectory() {
  std::string name = std::filesystem::temp_directory_path() / "vif-fuzz-XXXXXX";
  Require(mkdtemp(name.data()) != nullptr, "a temporary directory can be created");
  m_path = name;
  std::filesystem::create_directory(Inner());
}

CScratchDirectory::~CScratchDirectory() {
  std::error_code error;  // a leftover directory does no harm
  std::filesystem::remove_all(m_path, error);
}

CWorkingDirectory::CWorkingDirectory(const std::filesystem::path& path) : m_before(std::filesystem::current_path()) {
  std::filesystem::current_path(path);
}

CWorkingDirectory::~CWorkingDirectory() {
  std::error_code error;
  std::filesystem::current_path(m_before, error);
  Require(!error, "the working directory can be restored");
}

}  // namespace fuzz
