// The two functions by which a test-suite host loads and releases the VIF of the product under test.
#pragma once

#include "TestUtilities/TULog.h"
#include "VIFExport.h"

class CTUUserInput;

/// What the host passes to the hooks. Both objects belong to the host and are borrowed for the call.
struct TestSuiteContext {
  CTULog* log;              ///< receives the lines; may be null
  CTUUserInput* userInput;  ///< asks the operator; must not be null in `TestSuiteVIF_Initialize` unless `log` is
};

// Neither takes a lock. Call both from one thread, and Cleanup only when no test reads the published VIF.
extern "C" {

/// Call this when a test suite that needs a VIF starts. It has the operator choose a file, loads it and publishes it as
/// `CAppState::TestSuiteVIF` until `TestSuiteVIF_Cleanup`. It logs these lines, in this order, with these statuses:
///
/// - "Internal error: NULL user input module." or "Internal error: NULL test suite log." (0x40000000) when
///   `CAppState` has none;
/// - "No VIF selected for this test suite." (0x40000000) when the operator chooses no file;
/// - "Selected VIF: <file>." and "Initializing VIF..." (0x4000000);
/// - "Unexpected error creating <file>: <reason>." (0x4000000) or "Attempt to load valid VIF did not succeed: <reason>"
///   (0x40000000) when loading fails; the former with "<unknown file>" when the user-input module or the suite's log
///   throws before a file is known, which counts as a refusal.
///
/// A VIF that is already published is replaced but not deleted: call the two hooks alternately.
/// \param context if it is null or has no log, the function refuses without logging
/// \return 0x40000000 when it refuses: no context, log, user-input module or suite log, or no file chosen. Otherwise 1,
///   even when the file could not be loaded; only the log tells, and nothing is published.
/// \throws std::bad_alloc and nothing else, whatever the log and the user-input module throw
VIF_API TEST_STATUS TestSuiteVIF_Initialize(const TestSuiteContext* context);

/// Call this when the suite has ended and none of its tests reads the VIF any more. It withdraws the published VIF,
/// logs "Deleting Test Suite VIF: <file>" (0x4000000) and deletes it. With none published, it logs nothing.
/// \param context if it is null or has no log, nothing is logged; the work is done all the same
/// \return 1
/// \throws std::bad_alloc and nothing else; even then the VIF has been withdrawn and deleted
VIF_API TEST_STATUS TestSuiteVIF_Cleanup(const TestSuiteContext* context);
}
