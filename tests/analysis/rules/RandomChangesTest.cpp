// Whatever a file declares, the rules hold, and their findings are complete.
#include "Example.h"

#include "rules/Rule.h"
#include "support/Random.h"

#include <analysis/Rules.h>
#include <analysis/Vocabulary.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <string_view>

namespace vifanalysis {
namespace {

using Generator = std::mt19937_64;

constexpr std::string_view kValues[] = {
    "",     "0",    "1",        "2",      "3",      "4",          "5",        "7",          "8",
    "11",   "12",   "31",       "32",     "100",    "181",        "401",      "500",        "501",
    "1023", "1024", "65535",    "65536",  "100001", "0xFF00",     "1000001",  "4294967296", "18446744073709551615",
    "YES",  "NO",   "<select>", "FIX-ME", "9 V",    "3 Snk PDOs", "\x01\xFF;"};

std::string RandomValue(Generator& generator) {
  return std::string(kValues[testsupport::RandomBelow(generator, std::size(kValues))]);
}

std::string RandomName(Generator& generator) {
  return std::string(Fields()[testsupport::RandomBelow(generator, Fields().size())].name);
}

Place RandomPlace(const FoundFields& fields, Generator& generator) {
  Place place = fields[testsupport::RandomBelow(generator, fields.size())].field.Indexes();
  VifIndex& slot = place[testsupport::RandomBelow(generator, place.size())];
  if (std::get<0>(slot) == eVifLocUnset) return place;
  const std::uint64_t numbers[] = {0, 1, 2, 3, CVIFField::INDEX_NOT_SPECIFIED};
  std::get<1>(slot) = numbers[testsupport::RandomBelow(generator, std::size(numbers))];
  return place;
}

/// Gives one field another value, text, place or name, or removes, repeats or moves it.
void Change(FoundFields& fields, Generator& generator) {
  const auto at = fields.begin() + static_cast<std::ptrdiff_t>(testsupport::RandomBelow(generator, fields.size()));
  const CVIFField old = at->field;
  switch (testsupport::RandomBelow(generator, 8)) {
    case 0: fields.erase(at); return;
    case 1: fields.push_back(*at); return;
    case 2: std::iter_swap(at, fields.begin()); return;
    case 3:
      at->field =
          CVIFField(old.IsNumeric(), old.Name(), old.Value(), old.Description(), RandomPlace(fields, generator));
      return;
    case 4: at->field = CVIFField(old.IsNumeric(), RandomName(generator), old.Value(), old.Indexes()); return;
    case 5:
      at->field = CVIFField(old.IsNumeric(), old.Name(), old.Value(), RandomValue(generator), old.Indexes());
      return;
    default: at->field = CVIFField(old.IsNumeric(), old.Name(), RandomValue(generator), old.Indexes()); return;
  }
}

std::vector<Finding> Check(const FoundFields& fields) {
  std::vector<Finding> findings;
  FindContradictions(fields, findings);
  return findings;
}

void ExpectComplete(const Finding& finding, const FoundFields& fields) {
  const RuleInfo* rule = FindRule(finding.code);
  ASSERT_NE(rule, nullptr) << finding;
  EXPECT_EQ(rule->severity, finding.severity) << finding;
  ASSERT_NE(finding.message, "") << finding;
  EXPECT_EQ(std::string_view(" .,;:").find(finding.message.back()), std::string_view::npos) << finding;
  EXPECT_TRUE(std::any_of(fields.begin(), fields.end(), [&](const FoundField& found) {
    return found.line == finding.line && found.column == finding.column && found.element == finding.element;
  })) << finding;
}

class RandomChangesTest : public testing::TestWithParam<std::size_t> {};

TEST_P(RandomChangesTest, HaveCompleteFindings) {
  SCOPED_TRACE(testsupport::SeedMessage());
  Generator generator = testsupport::SeededGenerator();
  const CExample example(CleanExamples()[GetParam()].filename().string());
  std::set<std::string> codes;
  for (int round = 0; round < 150; ++round) {
    FoundFields fields = example.Fields();
    for (std::size_t changes = 1 + testsupport::RandomBelow(generator, 8); changes > 0; --changes) {
      Change(fields, generator);
    }
    const std::vector<Finding> findings = Check(fields);
    for (const Finding& finding : findings) {
      ExpectComplete(finding, fields);
      codes.insert(finding.code);
    }
    const FoundFields copy = fields;  // at other addresses, on which no finding depends
    const std::vector<Finding> again = Check(copy);
    ASSERT_EQ(findings.size(), again.size());
    for (std::size_t i = 0; i < findings.size(); ++i) EXPECT_EQ(findings[i].message, again[i].message);
  }
  EXPECT_GT(codes.size(), 5U);
}

INSTANTIATE_TEST_SUITE_P(AllExamples, RandomChangesTest, testing::Range(std::size_t{0}, CleanExamples().size()));

}  // namespace
}  // namespace vifanalysis
