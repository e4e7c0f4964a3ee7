// The part of a run in which the VIF of the product under test is there.
#pragma once

#include "SharedLibrary.h"

#include <TestSuiteVIF.h>
#include <ZorvenLog/TestSuiteLog.h>

namespace host {

/// The library's two hooks. Their types are taken from the header, so that the compiler sees when they are called
/// wrongly; their addresses come from the loaded library, so that the program does not need it in order to start.
struct VifHooks {
  decltype(&TestSuiteVIF_Initialize) initialize;
  decltype(&TestSuiteVIF_Cleanup) cleanup;
};

/// \throws CLibraryError when the library has no such functions
VifHooks FindHooks(const CSharedLibrary& library);

/// Has a VIF published from `Start` until the object goes.
class CVifSession {
 public:
  /// Sets up what the hooks look for: the user-input module and the suite's log in the state of the application, and
  /// the context.
  /// \param log borrowed, as is `input`, for the life of the session
  CVifSession(const VifHooks& hooks, CTULog& log, CTUUserInput& input);
  CVifSession(const CVifSession&) = delete;
  CVifSession& operator=(const CVifSession&) = delete;

  /// Cleans up, whatever has happened in between: also after a refusal, a file that could not be loaded, or an
  /// exception.
  ~CVifSession();

  /// Has a file chosen and loaded.
  /// \return whether it was loaded; if not, the log says why
  bool Start();

  /// What the suites are handed.
  const TestSuiteContext& Context() const { return m_context; }

 private:
  VifHooks m_hooks;
  CTestSuiteLog m_suiteLog;
  TestSuiteContext m_context;
};

}  // namespace host
