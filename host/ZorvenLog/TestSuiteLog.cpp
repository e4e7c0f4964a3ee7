#include "ZorvenLog/TestSuiteLog.h"

CTestSuiteLog::CTestSuiteLog() = default;

CTestSuiteLog::~CTestSuiteLog() = default;

CSafeString CTestSuiteLog::VifFileName() const { return m_vifFileName; }

void CTestSuiteLog::SetVifFileName(const CSafeString& fileName) { m_vifFileName = fileName; }
