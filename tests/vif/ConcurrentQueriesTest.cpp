// Threads that query one object at once. Most useful under ThreadSanitizer, with each test in a process of its own, so
// that its threads are the first to use regular expressions.
#include "QueryOutcome.h"
#include "support/InAllThreads.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <regex>
#include <string>
#include <tuple>
#include <vector>

namespace {

using testing::Each;
using testing::ElementsAre;
using testsupport::FieldTexts;
using testsupport::InAllThreads;
using testsupport::kThreads;
using testsupport::OutcomeOf;
using testsupport::Slots;
using testsupport::TempDir;

constexpr int kRounds = 50;
constexpr VifIndex kUnused = CVIFField::UNSPECIFIED_INDEX;
constexpr Slots kAnywhere = {kUnused, kUnused, kUnused};

VifIndex Component(std::uint64_t number) { return {eVifLocComponent, number}; }

CVIFField Field(const std::string& name, const std::string& value, std::uint64_t component) {
  return {true, name, value, "", Component(component), kUnused, kUnused};
}

/// A field Own_t for each thread t; two fields Twin; a field that is not numeric. No file name.
CVendorInfoFile Subject() {
  std::vector<CVIFField> fields;
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    fields.push_back(Field("Own_" + std::to_string(thread), std::to_string(thread), 1));
  }
  fields.push_back(Field("Twin", "1", 0));
  fields.push_back(Field("Twin", "2", 2));
  fields.emplace_back(false, "Vendor_Name", "ABC", "", Component(2), kUnused, kUnused);
  return CVendorInfoFile(fields);
}

/// Asks the query repeatedly and returns all its outcomes.
template <typename Query>
std::vector<std::string> Repeated(const Query& query) {
  std::vector<std::string> outcomes;
  for (int round = 0; round < kRounds; ++round) outcomes.push_back(OutcomeOf(query));
  return outcomes;
}

// What the first tests have in common is only that all threads compile an expression at the same time.

TEST(ConcurrentQueries, CompileTheirFirstExpressionsAtOnce) {
  const CVendorInfoFile vif = Subject();
  const auto counts =
      InAllThreads([&](std::size_t) { return vif.Count("[[:alpha:]]+_[0-7]|\\w*\\.\\x41", kAnywhere); });
  EXPECT_THAT(counts, Each(kThreads));
}

TEST(ConcurrentQueries, CompileDifferentFirstExpressionsAtOnce) {
  const CVendorInfoFile vif = Subject();
  constexpr std::array<const char*, kThreads> patterns = {
      "Own_.", "(Own|None)_\\d", "[Oo]wn_[[:digit:]]", "Own_\\w", "own_[^a-z]", "O\\wn_.*", "(?=O).*", "Own_(.)\\1?"};
  const auto counts = InAllThreads([&](std::size_t thread) { return vif.Count(patterns[thread], kAnywhere); });
  EXPECT_THAT(counts, ElementsAre(8U, 8U, 8U, 8U, 8U, 8U, 8U, 8U));
}

TEST(ConcurrentQueries, FailToCompileTheirFirstExpressionsAtOnce) {
  const CVendorInfoFile vif = Subject();
  constexpr std::array<const char*, kThreads> patterns = {"(", "[", "*", "a{", "\\", ")", "(?", "[[:none:]]"};
  const auto outcomes = InAllThreads(
      [&](std::size_t thread) { return OutcomeOf([&] { return vif.GetFields(patterns[thread], kAnywhere); }); });
  EXPECT_THAT(outcomes, Each(testing::StartsWith("std::regex_error")));
}

TEST(ConcurrentQueries, MatchLongNamesAtOnce) {
  const CVendorInfoFile vif({Field(std::string(3000, 'a'), "1", 0)});
  const auto outcomes = InAllThreads([&](std::size_t) {
    return std::vector{OutcomeOf([&] { return vif.Count("(a|b)*", kAnywhere); }),
                       OutcomeOf([&] { return vif.Count("(a)\\1*", kAnywhere); })};
  });
  EXPECT_THAT(outcomes, Each(outcomes[0]));
  EXPECT_EQ(outcomes[0][0], "1");
}

TEST(ConcurrentQueries, GetTheirOwnAnswers) {
  const CVendorInfoFile vif = Subject();
  const auto plain = InAllThreads([&](std::size_t thread) {
    const std::string pattern = "own_" + std::to_string(thread);
    return Repeated([&] { return vif.GetUniqueField(pattern.c_str(), kAnywhere); });
  });
  const auto expression = InAllThreads([&](std::size_t thread) {
    const std::wstring pattern = L"o.n_" + std::to_wstring(thread);
    return Repeated([&] { return vif.GetFields(pattern.c_str(), kAnywhere); });
  });
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    const std::string number = std::to_string(thread);
    EXPECT_THAT(plain[thread], Each("Own_" + number + "=" + number + " @6.1"));
    EXPECT_THAT(expression[thread], Each("[Own_" + number + "=" + number + " @6.1]"));
  }
}

TEST(ConcurrentQueries, FailWithTheirOwnMessagesWhenNothingMatches) {
  const CVendorInfoFile vif = Subject();
  const auto outcomes = InAllThreads([&](std::size_t thread) {
    const std::string pattern = std::string(1 + thread * 100, 'x') + std::to_string(thread);
    return Repeated([&] { return vif.GetUniqueField(pattern.c_str(), kAnywhere); });
  });
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    const std::string pattern = std::string(1 + thread * 100, 'x') + std::to_string(thread);
    EXPECT_THAT(outcomes[thread], Each("CZoRunTimeException: Couldn't find field in \"this VIF\" that matched with \"" +
                                       pattern + "\"."));
  }
}

TEST(ConcurrentQueries, FailWithTheirOwnMessagesWhenSeveralMatch) {
  const CVendorInfoFile vif = Subject();
  const auto outcomes = InAllThreads([&](std::size_t thread) {
    const std::string pattern = "Tw(in){1," + std::to_string(thread + 1) + "}";
    return Repeated([&] { return vif.GetSingleField(pattern.c_str(), kAnywhere); });
  });
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    EXPECT_THAT(outcomes[thread], Each("CZoRunTimeException: 2 fields in \"this VIF\" matched with \"Tw(in){1," +
                                       std::to_string(thread + 1) + "}\"."));
  }
}

TEST(ConcurrentQueries, FailWithTheirOwnMessagesOnFieldsThatAreNotNumeric) {
  const auto outcomes = InAllThreads([&](std::size_t thread) {
    const CVIFField field(false, "Name_" + std::to_string(thread), "ABC", kUnused, kUnused, kUnused);
    return Repeated([&] { return static_cast<std::size_t>(field.GetULongNumericValue()); });
  });
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    EXPECT_THAT(outcomes[thread],
                Each("CZoRunTimeException: Field 'Name_" + std::to_string(thread) + "' is not Numeric."));
  }
}

/// What every thread asks in the test below: every query, with answers and with failures.
std::vector<std::string> EveryQuery(const CVendorInfoFile& vif, std::size_t thread) {
  const std::string own = "Own_" + std::to_string(thread);
  const std::string none = "None_" + std::to_string(thread);
  const std::string twins = "(Twin|" + none + ")";
  const std::wstring wideTwins(twins.begin(), twins.end());
  return {
      OutcomeOf([&] { return vif.Count(); }),
      OutcomeOf([&] { return vif.Count(own.c_str(), kAnywhere); }),
      OutcomeOf([&] { return vif.Count("own_\\d", Component(1), kUnused, kUnused); }),
      OutcomeOf([&] { return vif.GetFields(); }),
      OutcomeOf([&] { return vif.GetFields(wideTwins.c_str(), kAnywhere); }),
      OutcomeOf([&] { return vif.GetUniqueField(own.c_str(), kAnywhere); }),
      OutcomeOf([&] { return vif.GetUniqueField(none.c_str(), kAnywhere); }),
      OutcomeOf([&] { return vif.GetUniqueField(twins.c_str(), kAnywhere); }),
      OutcomeOf([&] { return vif.GetUniqueField(nullptr, kAnywhere); }),
      OutcomeOf([&] { return vif.GetSingleField(own.c_str(), kAnywhere); }),
      OutcomeOf([&] { return vif.GetSingleField(none.c_str(), kAnywhere); }),
      OutcomeOf([&] { return vif.GetSingleField(twins.c_str(), kAnywhere); }),
      OutcomeOf([&] { return vif.GetFirstFields(own.c_str(), kUnused, kUnused); }),
      OutcomeOf([&] { return vif.GetFirstUniqueField(none.c_str(), kUnused, kUnused); }),
      OutcomeOf([&] { return vif.GetFirstUniqueField("own_.", kUnused, kUnused); }),
      OutcomeOf([&] { return vif.GetFields("(", kAnywhere); }),
      OutcomeOf([&] { return vif.GetUniqueField("[b-a]", kAnywhere); }),
      OutcomeOf([&] {
        return static_cast<std::size_t>(vif.GetUniqueField("Vendor_Name", kAnywhere).GetULongNumericValue());
      }),
      OutcomeOf([&] { return vif.GetComponent(thread % 3); }),
      OutcomeOf([&] { return vif.GetRouter(thread); }),
      OutcomeOf([&] { return vif.GetSrcPdo(1, thread); }),
      OutcomeOf([&] { return vif.ComponentCount(); }),
  };
}

TEST(ConcurrentQueries, OfEveryKindGiveTheSameResultsAsSequentialOnes) {
  const TempDir dir;
  CVendorInfoFile changing = Subject();
  testsupport::AppendEmptyComponents(changing, 2, dir.Write("empty.txt", "").string());
  const CVendorInfoFile vif = changing;
  const auto outcomes = InAllThreads([&](std::size_t thread) {
    std::vector<std::vector<std::string>> rounds;
    for (int round = 0; round < kRounds; ++round) rounds.push_back(EveryQuery(vif, thread));
    return rounds;
  });
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    EXPECT_THAT(outcomes[thread], Each(EveryQuery(vif, thread))) << "thread " << thread;
  }
  EXPECT_EQ(FieldTexts(*vif.GetFields()), FieldTexts(*Subject().GetFields()));
}

TEST(ConcurrentQueries, MayUseCopiesAndResultsInOtherThreads) {
  const CVendorInfoFile vif = Subject();
  const VifFieldList all = vif.GetFields();
  const auto texts = InAllThreads([&](std::size_t) {
    const CVendorInfoFile copy(vif);  // NOLINT(performance-unnecessary-copy-initialization): copying reads, too.
    return std::vector{FieldTexts(*copy.GetFields()), FieldTexts(*all)};
  });
  EXPECT_THAT(texts, Each(Each(FieldTexts(*all))));
}

}  // namespace
