// What the host and its test suites share.
#pragma once

#include "BaseUtilities/HostExport.h"

class CTestSuiteLog;
class CTUUserInput;
class CVendorInfoFile;

/// The state of the host's process: three borrowed pointers, all null at first. Whoever sets one must keep its object
/// alive until another is set.
///
/// Any number of threads may read and set each pointer at once, but not necessarily use what it points to.
class ZO_API CAppState {
 public:
  CAppState() = delete;

  /// The host's user-input module; null if there is none.
  static CTUUserInput* UserInput() noexcept;

  /// Sets the user-input module; null for none.
  static void SetUserInput(CTUUserInput* userInput) noexcept;

  /// The log of the running suite; null if there is none.
  static CTestSuiteLog* TestSuiteLog() noexcept;

  /// Sets the log of the running suite; null for none.
  static void SetTestSuiteLog(CTestSuiteLog* log) noexcept;

  /// The VIF of the product under test; null if none is published. Tests read it between the two hooks of a suite and
  /// must not delete it.
  static CVendorInfoFile* TestSuiteVIF() noexcept;

  /// Publishes a VIF; null withdraws the published one. Deletes nothing.
  static void TestSuiteVIF(CVendorInfoFile* vif) noexcept;
};
