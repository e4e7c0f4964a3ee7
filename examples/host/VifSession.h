// The part of a run during which the VIF of the product under test is published.
#pragma once

#include "SharedLibrary.h"

#include <TestSuiteVIF.h>
#include <ZorvenLog/TestSuiteLog.h>

namespace host {

/// The library's two hooks. Their types come from the header, so that the compiler catches wrong calls; their addresses
/// come from the loaded library, so that the program starts without it.
struct VifHooks {
  decltype(&TestSuiteVIF_Initialize) initialize;
  decltype(&TestSuiteVIF_Cleanup) cleanup;
};

/// \throws CLibraryError if the library has no such functions
VifHooks FindHooks(const CSharedLibrary& library);

/// Keeps a VIF published from `Start` until the object is destroyed.
class CVifSession {
 public:
  /// Sets up what the hooks need: the user-input module and the suite's log in `CAppState`, and the context.
  /// \param log borrowed, like `input`, for the life of the session
  CVifSession(const VifHooks& hooks, CTULog& log, CTUUserInput& input);
  CVifSession(const CVifSession&) = delete;
  CVifSession& operator=(const CVifSession&) = delete;

  /// Cleans up, whatever has happened: also after a refusal, a file that could not be loaded, or an exception.
  ~CVifSession();

  /// Has the library ask for a file and load it.
  /// \return whether it was loaded; if not, the log says why
  bool Start();

  /// What to pass to the suites.
  const TestSuiteContext& Context() const { return m_context; }

 private:
  VifHooks m_hooks;
  CTestSuiteLog m_suiteLog;
  TestSuiteContext m_context;
};

}  // namespace host
