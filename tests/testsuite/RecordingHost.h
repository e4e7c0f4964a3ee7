// A host that records what the hooks do to it.
#pragma once

#include "BaseUtilities/StringConvert.h"
#include "TestSuiteVIF.h"
#include "TestUtilities/AppState.h"
#include "TestUtilities/TUUserInput.h"
#include "ZorvenLog/TestSuiteLog.h"

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace testsupport {

/// Records lines as "4000000 text", wide ones as "4000000 L text".
class CRecordingLog : public CTULog {
 public:
  TEST_STATUS DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                      const char* text) override {
    Record(status, verbosity, format, text);
    return status;
  }

  TEST_STATUS DoWrite(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format,
                      const wchar_t* text) override {
    Record(status, verbosity, format, "L " + Utf16ToUtf8(text));
    return status;
  }

  /// Called with the number of each line, from 1, before the line is recorded.
  std::function<void(std::size_t)> onLine;

  const std::vector<std::string>& Lines() const { return m_lines; }

  /// Whether every line had the default verbosity of its status and no format.
  bool AreAllPlain() const { return m_areAllPlain; }

 private:
  void Record(TEST_STATUS status, eZoLogVerbosity verbosity, const CFormatInfo* format, const std::string& text) {
    const std::function<void(std::size_t)> callback = onLine;  // a copy, because the callback may replace it
    if (callback) callback(m_lines.size() + 1);
    std::ostringstream line;
    line << std::hex << status << ' ' << text;
    m_lines.push_back(line.str());
    m_areAllPlain = m_areAllPlain && format == nullptr && verbosity == GetDefaultLogVerbosity(status);
  }

  std::vector<std::string> m_lines;
  bool m_areAllPlain = true;
};

/// An operator who chooses one file, or none.
class CScriptedInput : public CTUUserInput {
 public:
  bool ChooseFile(const wchar_t* prompt, const wchar_t* caption, unsigned long flags, unsigned long reserved) override {
    question = std::wstring(caption) + L": " + prompt;
    wasPlain = flags == 0 && reserved == 0;
    if (onChoice) onChoice();
    return chooses;
  }

  bool chooses = true;
  std::function<void()> onChoice;
  std::wstring question;
  bool wasPlain = false;
};

/// Sets up the application state as a host does, and clears it again.
class CRecordingHost {
 public:
  CRecordingHost() {
    CAppState::SetUserInput(&input);
    CAppState::SetTestSuiteLog(&suiteLog);
  }
  CRecordingHost(const CRecordingHost&) = delete;
  CRecordingHost& operator=(const CRecordingHost&) = delete;
  ~CRecordingHost() {
    TestSuiteVIF_Cleanup(nullptr);
    CAppState::SetUserInput(nullptr);
    CAppState::SetTestSuiteLog(nullptr);
  }

  TEST_STATUS Initialize() const { return TestSuiteVIF_Initialize(&context); }
  TEST_STATUS Cleanup() const { return TestSuiteVIF_Cleanup(&context); }

  CRecordingLog log;
  CScriptedInput input;
  CTestSuiteLog suiteLog;
  TestSuiteContext context{&log, &input};
};

}  // namespace testsupport
