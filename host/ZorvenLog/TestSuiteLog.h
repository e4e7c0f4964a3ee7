// The log of one test suite.
#pragma once

#include "BaseUtilities/HostExport.h"
#include "BaseUtilities/SafeString.h"

/// What is recorded about a suite. Only one thread at a time may use it.
class ZO_API CTestSuiteLog {
 public:
  CTestSuiteLog();
  CTestSuiteLog(const CTestSuiteLog&) = delete;
  CTestSuiteLog& operator=(const CTestSuiteLog&) = delete;
  ~CTestSuiteLog();

  /// The VIF file that the operator chose, as narrow text that the system's file functions understand; empty if none
  /// was chosen.
  CSafeString VifFileName() const;

  /// Records the operator's choice.
  void SetVifFileName(const CSafeString& fileName);

 private:
  CSafeString m_vifFileName;
};
