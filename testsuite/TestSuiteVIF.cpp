#include "TestSuiteVIF.h"

#include "BaseUtilities/PathText.h"
#include "BaseUtilities/StringConvert.h"
#include "TestUtilities/AppState.h"
#include "TestUtilities/TUUserInput.h"
#include "VendorInfoFile.h"
#include "ZorvenLog/TestSuiteLog.h"
#include "msxml/ComPointer.h"

#include <exception>
#include <memory>
#include <new>
#include <string>
#include <utility>

namespace {

constexpr TEST_STATUS kDone = 1;
constexpr TEST_STATUS kInformation = 0x4000000;
constexpr TEST_STATUS kRefused = 0x40000000;

constexpr const wchar_t* kPrompt = L"Select a Vendor Info File for the qualifying product under test";
constexpr const wchar_t* kCaption = L"Choose VIF for test suite";
constexpr const wchar_t* kUnknownError = L"<unknown error>";

/// Logs one line, a wide one if the format is wide.
template <typename Character, typename... Arguments>
void Write(CTULog& log, TEST_STATUS status, const Character* format, const Arguments&... arguments) {
  const Character* text = CTULog::GetSimpleBuffer().Printf(format, arguments...);
  log.DoWrite(status, CTULog::GetDefaultLogVerbosity(status), nullptr, text);
}

/// The same where a failing log can be ignored: the line is lost, but the status still tells.
template <typename Character, typename... Arguments>
void TryToWrite(CTULog& log, TEST_STATUS status, const Character* format, const Arguments&... arguments) {
  try {
    Write(log, status, format, arguments...);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (...) {  // NOLINT(bugprone-empty-catch)
  }
}

TEST_STATUS Refuse(CTULog& log, const char* reason) {
  TryToWrite(log, kRefused, reason);
  return kRefused;
}

/// What an exception says; `otherwise` when that is nothing, which exceptions of a host's own may do.
std::wstring TextOf(const std::exception& error, const wchar_t* otherwise) {
  const char* text = error.what();
  return text != nullptr ? Utf8ToUtf16(text) : otherwise;
}

/// Logs the exception being handled; out-of-memory passes. Call it in a handler only.
/// \param fileName narrow, as the host gave it. It goes to a wide placeholder unconverted: the buffer sees its type and
///   prints its text.
void WriteCreateError(CTULog& log, const char* fileName) {
  constexpr const wchar_t* unexpected = L"Unexpected error creating %ls: %ls.";
  try {
    throw;
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const _com_error& error) {
    const auto* message = error.ErrorMessage();
    if (message != nullptr) {
      TryToWrite(log, kRefused, L"Attempt to load valid VIF did not succeed: COM Exception - %ls", message);
    } else {
      TryToWrite(log, kRefused, L"Attempt to load valid VIF did not succeed: %ls", L"[Unknown COM Exception]");
    }
  } catch (const std::exception& error) {
    TryToWrite(log, kInformation, unexpected, fileName, TextOf(error, kUnknownError));
  } catch (...) {
    TryToWrite(log, kInformation, unexpected, fileName, kUnknownError);
  }
}

/// Loads the file that the operator chose and publishes it.
void LoadAndPublish(CTULog& log, const char* fileName) {
  Write(log, kInformation, "Initializing VIF...");
  auto vif = std::make_unique<CVendorInfoFile>(PathFromSystem(fileName));
  CAppState::TestSuiteVIF(vif.get());
  static_cast<void>(vif.release());  // NOLINT(bugprone-unused-return-value): the application state owns it now
}

TEST_STATUS Initialize(const TestSuiteContext& context) {
  CTULog& log = *context.log;
  if (CAppState::UserInput() == nullptr) return Refuse(log, "Internal error: NULL user input module.");
  const CTestSuiteLog* suiteLog = CAppState::TestSuiteLog();
  if (suiteLog == nullptr) return Refuse(log, "Internal error: NULL test suite log.");
  if (!context.userInput->ChooseFile(kPrompt, kCaption, 0, 0))
    return Refuse(log, "No VIF selected for this test suite.");
  const CSafeString fileName = suiteLog->VifFileName();
  try {
    Write(log, kInformation, "Selected VIF: %s.", fileName);
    LoadAndPublish(log, fileName.get());
  } catch (...) {
    WriteCreateError(log, fileName.get());
  }
  return kDone;
}

/// Logs that the VIF goes, and deletes it.
void Delete(CTULog& log, std::unique_ptr<CVendorInfoFile> vif) {
  std::wstring fileName = L"<unknown file>";
  try {
    fileName = vif->FileName();
    Write(log, kInformation, L"Deleting Test Suite VIF: %ls", fileName);
    vif = nullptr;
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    TryToWrite(log, kInformation, L"Unexpected error deleting %ls: %ls.", fileName, TextOf(error, L"<unknown>"));
  } catch (...) {
    TryToWrite(log, kInformation, L"Unexpected error deleting %ls: <unknown>.", fileName);
  }
}

}  // namespace

TEST_STATUS TestSuiteVIF_Initialize(const TestSuiteContext* context) {
  if (context == nullptr || context->log == nullptr) return kRefused;
  try {
    return Initialize(*context);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (...) {
    // The host's own modules failed before a file was chosen.
    WriteCreateError(*context->log, "<unknown file>");
    return kRefused;
  }
}

TEST_STATUS TestSuiteVIF_Cleanup(const TestSuiteContext* context) {
  CTULog* log = context != nullptr ? context->log : nullptr;
  std::unique_ptr<CVendorInfoFile> vif(CAppState::TestSuiteVIF());
  CAppState::TestSuiteVIF(nullptr);  // before anything can fail
  if (vif != nullptr && log != nullptr) Delete(*log, std::move(vif));
  return kDone;
}
