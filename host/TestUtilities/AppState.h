// What the host and its test suites share.
#pragma once

#include "BaseUtilities/HostExport.h"

class CTestSuiteLog;
class CTUUserInput;
class CVendorInfoFile;

/// The state of the host's process: three borrowed pointers, all null at first. Whoever sets one sees to it that its
/// object lives until another is set.
///
/// Each pointer may be read and set from any thread at once; what it points to is another matter.
class ZO_API CAppState {
 public:
  CAppState() = delete;

  /// The host's user-input module; null when there is none.
  static CTUUserInput* UserInput() noexcept;
  static void SetUserInput(CTUUserInput* userInput) noexcept;

  /// The log of the suite that runs; null when there is none.
  static CTestSuiteLog* TestSuiteLog() noexcept;
  static void SetTestSuiteLog(CTestSuiteLog* log) noexcept;

  /// The VIF of the product under test; null when none is published. Tests read it between the two hooks of a suite and
  /// must not delete it.
  static CVendorInfoFile* TestSuiteVIF() noexcept;

  /// Publishes a VIF, or withdraws the one published with null. Nothing is deleted.
  static void TestSuiteVIF(CVendorInfoFile* vif) noexcept;
};
