// What statuses of log lines and results mean in this host.
#pragma once

#include <TestUtilities/TULog.h>

namespace host {

// The three that the library uses; see TestUtilities/TULog.h.
constexpr TEST_STATUS kDone = 1;
constexpr TEST_STATUS kInformation = 0x4000000;
constexpr TEST_STATUS kRefused = 0x40000000;

// The results of checks. The library does not know these: a host and its suites agree on numbers of their own.
constexpr TEST_STATUS kPassed = kDone;
constexpr TEST_STATUS kFailed = 2;
constexpr TEST_STATUS kNotApplicable = 4;

/// A word for people.
constexpr const char* StatusWord(TEST_STATUS status) {
  switch (status) {
    case kPassed: return "PASS";
    case kFailed: return "FAIL";
    case kNotApplicable: return "N/A";
    case kInformation: return "INFO";
    case kRefused: return "ERROR";
    default: return "OTHER";
  }
}

}  // namespace host
