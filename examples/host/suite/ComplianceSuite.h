// A test suite for the published VIF, as the host sees it.
#pragma once

#include <TestSuiteVIF.h>

#ifdef _WIN32
#define SUITE_API __declspec(dllexport)
#else
#define SUITE_API __attribute__((visibility("default")))
#endif

/// Runs the checks on `CAppState::TestSuiteVIF()` and writes what they find to the context's log. Call it between the
/// two hooks.
/// \return `kPassed` if all is well; `kFailed` if a check failed; `kRefused` if one could not be run, or there is no
///   context, log or VIF
/// \throws std::bad_alloc and nothing else
extern "C" SUITE_API TEST_STATUS ComplianceSuite_Run(const TestSuiteContext* context);
