// The two functions by which a test-suite host loads and releases the VIF of the product under test.
#pragma once

#include "TestUtilities/TULog.h"
#include "VIFExport.h"

class CTUUserInput;

/// What the host hands to the hooks. Both objects are the host's and are borrowed for the call.
struct TestSuiteContext {
  CTULog* log;              ///< receives the lines; may be null
  CTUUserInput* userInput;  ///< asks the operator; must not be null in `TestSuiteVIF_Initialize` unless `log` is
};

// Both take no locks: a host calls them from one thread, and Cleanup while no test reads the published VIF.
extern "C" {

/// To be called when a test suite that needs a VIF starts: has the operator choose a file, loads it and publishes it as
/// `CAppState::TestSuiteVIF`, where it stays until `TestSuiteVIF_Cleanup`. Lines, in their order, with their status:
///
/// - "Internal error: NULL user input module." or "Internal error: NULL test suite log." (0x40000000) when
///   `CAppState` has none;
/// - "No VIF selected for this test suite." (0x40000000) when the operator chooses no file;
/// - "Selected VIF: <file>." and "Initializing VIF..." (0x4000000);
/// - "Unexpected error creating <file>: <reason>." (0x4000000) or "Attempt to load valid VIF did not succeed: <reason>"
///   (0x40000000) when loading fails; the former with "<unknown file>" when the user-input module or the suite's log
///   throws before a file is known, which counts as a refusal.
///
/// A VIF that is published already is replaced and not deleted: the host calls the hooks by turns.
/// \param context null, or one without a log, makes the function refuse without a line
/// \return 0x40000000 when it refuses: no context, no log, nothing to ask or to be asked by, or no file chosen; 1
///   otherwise, even when the file could not be loaded, which only the log tells. Nothing is published then.
/// \throws std::bad_alloc and nothing else, whatever the log and the user-input module throw
VIF_API TEST_STATUS TestSuiteVIF_Initialize(const TestSuiteContext* context);

/// To be called when the suite ends and none of its tests reads the VIF any more: withdraws the published VIF, writes
/// "Deleting Test Suite VIF: <file>" (0x4000000) and deletes it. With none published, nothing is written.
/// \param context with null, or without a log, nothing is written; the work is done all the same
/// \return 1
/// \throws std::bad_alloc and nothing else; the VIF has been withdrawn and deleted then, too
VIF_API TEST_STATUS TestSuiteVIF_Cleanup(const TestSuiteContext* context);
}
