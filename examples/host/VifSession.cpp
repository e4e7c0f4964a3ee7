#include "VifSession.h"

#include "Status.h"

#include <TestUtilities/AppState.h>
#include <TestUtilities/TUUserInput.h>

#include <exception>
#include <iostream>

namespace host {

VifHooks FindHooks(const CSharedLibrary& library) {
  return {library.Find<decltype(VifHooks::initialize)>("TestSuiteVIF_Initialize"),
          library.Find<decltype(VifHooks::cleanup)>("TestSuiteVIF_Cleanup")};
}

CVifSession::CVifSession(const VifHooks& hooks, CTULog& log, CTUUserInput& input)
    : m_hooks(hooks), m_context{&log, &input} {
  CAppState::SetUserInput(&input);
  CAppState::SetTestSuiteLog(&m_suiteLog);
}

CVifSession::~CVifSession() {
  try {
    m_hooks.cleanup(&m_context);
  } catch (const std::exception& error) {  // out of memory; the VIF has been deleted all the same
    std::cerr << "reference_host: " << error.what() << '\n';
  }
  CAppState::SetTestSuiteLog(nullptr);
  CAppState::SetUserInput(nullptr);
}

bool CVifSession::Start() {
  const CVendorInfoFile* before = CAppState::TestSuiteVIF();
  if (m_hooks.initialize(&m_context) != kDone) return false;
  // "Done" means that the hook did its work, not that the file could be loaded. It was loaded if a different VIF is
  // published now: if loading fails, a VIF that was already published stays; if it succeeds, that one is replaced but
  // not deleted, so the new one has another address.
  const CVendorInfoFile* now = CAppState::TestSuiteVIF();
  return now != nullptr && now != before;
}

}  // namespace host
