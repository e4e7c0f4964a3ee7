// A test suite over the published VIF, from the host's side.
#pragma once

#include <TestSuiteVIF.h>

#ifdef _WIN32
#define SUITE_API __declspec(dllexport)
#else
#define SUITE_API __attribute__((visibility("default")))
#endif

/// Runs the checks over `CAppState::TestSuiteVIF()` and writes what they find to the context's log. To be called
/// between the two hooks.
/// \return whether all is well: `kPassed`; `kFailed` when a check has failed; `kRefused` when one could not be run, or
///   there is no context, no log or no VIF
/// \throws std::bad_alloc and nothing else
extern "C" SUITE_API TEST_STATUS ComplianceSuite_Run(const TestSuiteContext* context);
