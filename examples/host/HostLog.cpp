#include "HostLog.h"

#include "Printable.h"
#include "Status.h"

#include <BaseUtilities/PathText.h>
#include <BaseUtilities/StringConvert.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <stdexcept>

namespace host {

namespace {

std::string TimeText() {
  using namespace std::chrono;
  const auto now = floor<seconds>(system_clock::now());
  const auto today = floor<days>(now);
  const year_month_day date(today);
  const hh_mm_ss time(now - today);
  std::array<char, 64> text;
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                static_cast<int>(time.seconds().count()));
  return text.data();
}

std::string StatusText(TEST_STATUS status) {
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "0x%08X %-5s", static_cast<unsigned>(status), StatusWord(status));
  return text.data();
}

}  // namespace

CHostLog::CHostLog(const std::string& file) : m_file(PathFromUtf8(file), std::ios::app | std::ios::binary) {
  if (!m_file) throw std::runtime_error("Cannot write to the log " + file);
}

TEST_STATUS CHostLog::DoWrite(TEST_STATUS status, eZoLogVerbosity, const CFormatInfo*, const char* text) {
  const std::string line = TimeText() + ' ' + StatusText(status) + ' ' + Printable(text) + '\n';
  std::cout << line << std::flush;
  m_file << line << std::flush;  // at once: after a crash, the last lines tell where it happened
  return status;
}

TEST_STATUS CHostLog::DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                              const wchar_t* text) {
  return DoWrite(status, verbosity, format, Utf16ToUtf8(text).c_str());
}

void CHostLog::Write(TEST_STATUS status, const std::string& text) {
  DoWrite(status, GetDefaultLogVerbosity(status), nullptr, text.c_str());
}

bool CHostLog::IsComplete() { return m_file.good() && std::cout.good(); }

}  // namespace host
