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
  } catch (const std::exception& error) {  // out of memory; the VIF is gone all the same
    std::cerr << "reference_host: " << error.what() << '\n';
  }
  CAppState::SetTestSuiteLog(nullptr);
  CAppState::SetUserInput(nullptr);
}

bool CVifSession::Start() {
  const CVendorInfoFile* before = CAppState::TestSuiteVIF();
  if (m_hooks.initialize(&m_context) != kDone) return false;
  // "Done" means that the hook has done its work, not that the file could be loaded. Whether it could is told by a VIF
  // being there that was not there before: one that is published already stays when the load fails. When it succeeds,
  // that one is replaced and not deleted, so that the new one has another address.
  const CVendorInfoFile* now = CAppState::TestSuiteVIF();
  return now != nullptr && now != before;
}

}  // namespace host
