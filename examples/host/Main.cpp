// A reference host: what a program does that runs test suites over the VIF of a product. Read it from here on.
//
// There are three parties, as there are in life:
//
// - the host, this program. It is linked with the host's libraries only (VendorInfoFileHost stands in for them) and
//   brings the log and the user-input module, by which others write lines and ask the operator;
// - the library VendorInfoFile, which the host loads when it is about to run a suite that needs a VIF. It loads the VIF
//   that the operator chooses and publishes it;
// - the test suite, suite/, a library of its own that is linked with VendorInfoFile and reads the published VIF through
//   its classes. The host knows nothing of fields.
//
// They meet in CAppState. It must exist once in the process: so all three use the one shared library that has it.
#include "Console.h"
#include "HostLog.h"
#include "Options.h"
#include "Printable.h"
#include "SharedLibrary.h"
#include "Status.h"
#include "UserInput.h"
#include "VifSession.h"
#include "suite/ComplianceSuite.h"

#include <BaseUtilities/PathText.h>
#include <msxml/ComApartment.h>

#include <exception>
#include <iostream>
#include <memory>
#include <span>

namespace {

using namespace host;

enum ExitStatus { kNothingFailed = 0, kChecksFailed = 1, kCouldNotRun = 2 };

std::unique_ptr<CTUUserInput> MakeUserInput(const Options& options) {
  if (!options.vif.empty()) return std::make_unique<CGivenFile>(PathFromUtf8(options.vif));
  return std::make_unique<CTerminalInput>(PathFromUtf8(options.directory.empty() ? "." : options.directory));
}

/// The whole of a run, in the order in which things must be there; they go in the opposite order. The library comes
/// before the suite, so that the suite, which needs it, gets the one that was asked for (on Windows only when its file
/// is called as the installed one); and both outlive the session, because the VIF is the library's object.
ExitStatus Run(const Options& options, CHostLog& log) {
  const CComApartment apartment;  // COM is the host's business
  const std::unique_ptr<CTUUserInput> input = MakeUserInput(options);
  const CSharedLibrary library(options.library);
  const VifHooks hooks = FindHooks(library);
  const CSharedLibrary suite(SUITE_LIBRARY);
  const auto runSuite = suite.Find<decltype(&ComplianceSuite_Run)>("ComplianceSuite_Run");

  CVifSession session(hooks, log, *input);
  if (!session.Start()) return kCouldNotRun;
  switch (runSuite(&session.Context())) {
    case kPassed: return kNothingFailed;
    case kFailed: return kChecksFailed;
    default: return kCouldNotRun;
  }
}

/// Runs and has the log tell what prevents it.
ExitStatus RunAndLog(const Options& options) {
  CHostLog log(options.log);
  ExitStatus status = kCouldNotRun;
  try {
    status = Run(options, log);
  } catch (const std::exception& error) {
    log.Write(kRefused, error.what());
  } catch (const _com_error&) {
    log.Write(kRefused, "COM cannot be used");
  }
  if (log.IsComplete()) return status;
  std::cerr << "reference_host: the log could not be written\n";
  return kCouldNotRun;  // a result without its record is none
}

}  // namespace

int main(int argc, char* argv[]) {
  try {
    PrepareConsole();
    const std::span<char* const> arguments(argv, static_cast<std::size_t>(argc));
    const Options options = ParseOptions(arguments.empty() ? arguments : arguments.subspan(1));
    if (!options.help) return RunAndLog(options);
    return std::cout << kUsage << std::flush ? kNothingFailed : kCouldNotRun;
  } catch (const CUsageError& error) {
    std::cerr << "reference_host: " << Printable(error.what()) << '\n' << kUsage;
  } catch (const std::exception& error) {
    std::cerr << "reference_host: " << Printable(error.what()) << '\n';
  }
  return kCouldNotRun;
}
