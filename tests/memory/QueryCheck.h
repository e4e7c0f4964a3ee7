// Queries with memory running out.
#pragma once

#include "Outcome.h"
#include "Samples.h"
#include "VendorInfoFile.h"
#include "support/AppendFile.h"
#include "support/FieldText.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"
#include "vif/QueryOutcome.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace testsupport {

/// Runs a query with every allocation failing in turn. If it completes, the outcome, a result or an exception, must be
/// the same as with enough memory; and the object must be unchanged.
/// \param expected the result, or the exception, as text (`OutcomeOf`)
template <typename Query>
void ExpectQuerySurvivesFailures(const CVendorInfoFile& vif, const std::string& expected, const Query& query) {
  const std::vector<std::string> before = FieldTexts(*vif.GetFields());
  EXPECT_EQ(OutcomeOf(query), expected);
  const auto operation = [&] { return COutcome(query); };
  ForEveryFailingAllocation(operation, [&](const auto& outcome) {
    if (outcome) {
      EXPECT_EQ(OutcomeOf([&]() -> decltype(auto) { return outcome->Get(); }), expected);
    }
    EXPECT_EQ(FieldTexts(*vif.GetFields()), before);
    EXPECT_EQ(OutcomeOf(query), expected);
  });
}

/// The same in the four forms of a query: with a narrow and a wide pattern, each with separate slots and with an array
/// of slots.
/// \param ask runs the query with the arguments of any form
template <typename Ask>
void ExpectAllFormsBearFailures(const CVendorInfoFile& vif, const std::string& expected, const std::string& pattern,
                                const Slots& slots, const Ask& ask) {
  const char* narrow = pattern.c_str();
  const std::wstring wideText = Utf8ToUtf16(pattern);
  const wchar_t* wide = wideText.c_str();
  ExpectQuerySurvivesFailures(vif, expected, [&] { return ask(narrow, slots[0], slots[1], slots[2]); });
  ExpectQuerySurvivesFailures(vif, expected, [&] { return ask(narrow, slots); });
  ExpectQuerySurvivesFailures(vif, expected, [&] { return ask(wide, slots[0], slots[1], slots[2]); });
  ExpectQuerySurvivesFailures(vif, expected, [&] { return ask(wide, slots); });
}

/// The same for `GetFirstFields` and `GetFirstUniqueField`, which take two slots and have two forms.
template <typename Ask>
void ExpectFirstFormsBearFailures(const CVendorInfoFile& vif, const std::string& expected, const std::string& pattern,
                                  const VifIndex& index2, const VifIndex& index3, const Ask& ask) {
  const std::wstring wide = Utf8ToUtf16(pattern);
  ExpectQuerySurvivesFailures(vif, expected, [&] { return ask(pattern.c_str(), index2, index3); });
  ExpectQuerySurvivesFailures(vif, expected, [&] { return ask(wide.c_str(), index2, index3); });
}

}  // namespace testsupport
