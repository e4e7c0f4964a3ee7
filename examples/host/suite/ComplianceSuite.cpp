#include "ComplianceSuite.h"

#include "../Status.h"
#include "Checks.h"

#include <TestUtilities/AppState.h>

#include <exception>
#include <new>
#include <string>

namespace {

using namespace suite;

/// How many checks ended in which way.
struct Tally {
  std::size_t passed = 0;
  std::size_t failed = 0;
  std::size_t notApplicable = 0;
  std::size_t notRun = 0;
};

void Write(CTULog& log, TEST_STATUS status, const std::string& text) {
  log.DoWrite(status, CTULog::GetDefaultLogVerbosity(status), nullptr, text.c_str());
}

void Report(const Check& check, const Verdict& verdict, CTULog& log, Tally& tally) {
  const std::string title = std::string(check.title) + ": ";
  if (!verdict.failures.empty()) {
    ++tally.failed;
    for (const std::string& failure : verdict.failures) Write(log, host::kFailed, title + failure);
  } else if (verdict.examined == 0) {
    ++tally.notApplicable;
    Write(log, host::kNotApplicable, title + "the VIF has no " + check.examines);
  } else {
    ++tally.passed;
    Write(log, host::kPassed, title + "nothing wrong; " + check.examines + ": " + std::to_string(verdict.examined));
  }
}

/// An exception ends only its own check, and must not leave a function that the host calls through a pointer.
void Run(const Check& check, const CVendorInfoFile& vif, CTULog& log, Tally& tally) {
  try {
    Report(check, check.run(vif), log, tally);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    ++tally.notRun;
    Write(log, host::kRefused, std::string(check.title) + ": could not be run: " + error.what());
  }
}

}  // namespace

TEST_STATUS ComplianceSuite_Run(const TestSuiteContext* context) {
  if (context == nullptr || context->log == nullptr) return host::kRefused;
  CTULog& log = *context->log;
  const CVendorInfoFile* vif = CAppState::TestSuiteVIF();
  if (vif == nullptr) {
    Write(log, host::kRefused, "No VIF is published.");
    return host::kRefused;
  }
  Tally tally;
  for (const Check& check : AllChecks()) Run(check, *vif, log, tally);
  Write(log, host::kInformation,
        "Checks: " + std::to_string(tally.passed) + " passed, " + std::to_string(tally.failed) + " failed, " +
            std::to_string(tally.notApplicable) + " not applicable, " + std::to_string(tally.notRun) + " not run.");
  if (tally.notRun > 0) return host::kRefused;
  return tally.failed > 0 ? host::kFailed : host::kPassed;
}
