// The log of one test suite.
#pragma once

#include "BaseUtilities/HostExport.h"
#include "BaseUtilities/SafeString.h"

/// What is recorded of a suite. For one thread at a time.
class ZO_API CTestSuiteLog {
 public:
  CTestSuiteLog();
  CTestSuiteLog(const CTestSuiteLog&) = delete;
  CTestSuiteLog& operator=(const CTestSuiteLog&) = delete;
  ~CTestSuiteLog();

  /// The VIF file that the operator chose, as narrow text that the system's file functions understand; empty when none
  /// was chosen.
  CSafeString VifFileName() const;

  /// Records the operator's choice.
  void SetVifFileName(const CSafeString& fileName);

 private:
  CSafeString m_vifFileName;
};
