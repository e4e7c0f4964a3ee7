#include "TestUtilities/AppState.h"

#include <atomic>

namespace {

std::atomic<CTUUserInput*> g_userInput = nullptr;
std::atomic<CTestSuiteLog*> g_testSuiteLog = nullptr;
std::atomic<CVendorInfoFile*> g_testSuiteVif = nullptr;

}  // namespace

CTUUserInput* CAppState::UserInput() noexcept { return g_userInput; }

void CAppState::SetUserInput(CTUUserInput* userInput) noexcept { g_userInput = userInput; }

CTestSuiteLog* CAppState::TestSuiteLog() noexcept { return g_testSuiteLog; }

void CAppState::SetTestSuiteLog(CTestSuiteLog* log) noexcept { g_testSuiteLog = log; }

CVendorInfoFile* CAppState::TestSuiteVIF() noexcept { return g_testSuiteVif; }

void CAppState::TestSuiteVIF(CVendorInfoFile* vif) noexcept { g_testSuiteVif = vif; }
