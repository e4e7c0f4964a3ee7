// A reference host: shows what a program that runs test suites on a product's VIF must do. Start reading here.
//
// Three parties are involved, as in a real setup:
//
// - the host, this program. It is linked with the host's libraries only (VendorInfoFileHost stands in for them). It
//   provides the log and the user-input module, through which the others write lines and ask the operator;
// - the library VendorInfoFile, which the host loads when it is about to run a suite that needs a VIF. It loads the VIF
//   that the operator chooses and publishes it;
// - the test suite, in suite/, a separate library that is linked with VendorInfoFile and reads the published VIF
//   through its classes. The host knows nothing about fields.
//
// They meet in CAppState, which must exist only once in the process. So all three use the one shared library that
// contains it.
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

/// A complete run. Objects are created in the order in which they are needed, and destroyed in the opposite order. The
/// library is loaded before the suite, which depends on it, so that the suite gets the one that was asked for (on
/// Windows only if that has the file name of the installed one). Both outlive the session, because the VIF is the
/// library's object.
ExitStatus Run(const Options& options, CHostLog& log) {
  const CComApartment apartment;  // initialising COM is up to the host
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

/// Runs, and logs whatever prevents that.
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
  return kCouldNotRun;  // a result without a record does not count
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
