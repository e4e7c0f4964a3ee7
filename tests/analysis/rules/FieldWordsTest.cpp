#include "rules/FieldWords.h"

#include "Example.h"

#include <gtest/gtest.h>

#include <utility>

namespace vifanalysis {
namespace {

/// A file of one component, each field as given.
FoundFields FileOf(std::initializer_list<std::pair<const char*, const char*>> values) {
  FoundFields fields;
  for (const auto& [name, value] : values) {
    fields.push_back({CVIFField(true, name, value, Component(1)), fields.size() + 1, 0, name});
  }
  return fields;
}

std::string WordsFor(const char* name, const char* value) {
  const FoundFields fields = FileOf({{name, value}});
  return ValueInWords(fields.front(), CVifView(fields));
}

TEST(FieldWordsTest, SayWhatAValueStandsFor) {
  EXPECT_EQ(WordsFor("Captive_Cable", "YES"), "YES");
  EXPECT_EQ(WordsFor("Captive_Cable", "0"), "NO");
  EXPECT_EQ(WordsFor("Connector_Type", "2"), "2 (Type-C)");
  EXPECT_EQ(WordsFor("PD_Power_As_Source", "7500"), "7.5 W");
  EXPECT_EQ(WordsFor("USB_VID_SOP", "59725"), "0xE94D");
}

TEST(FieldWordsTest, GiveTheNumberOrTheTextWhereNothingMoreIsKnown) {
  EXPECT_EQ(WordsFor("Captive_Cable", "7"), "7");
  EXPECT_EQ(WordsFor("Connector_Type", "18446744073709551614"), "18446744073709551614");
  EXPECT_EQ(WordsFor("No_Such_Field", "5"), "5");
  EXPECT_EQ(WordsFor("Connector_Type", "what"), "'what'");
}

TEST(FieldWordsTest, MakeALeadingPartOfASentence) {
  const FoundFields fields = FileOf({{"Captive_Cable", "YES"}});
  EXPECT_EQ(FieldIs(fields.front(), CVifView(fields)), "Captive_Cable is YES");
}

TEST(FieldWordsTest, QuoteNamesThatAreNotOfTheFormat) {
  const std::string longName(1000, 'x');
  const FoundFields fields = FileOf({{"X_\x1b[31m\xff", "1"}, {longName.c_str(), "1"}});
  const CVifView file(fields);
  CMentions mentions;
  mentions.AddFields(file.Components().front(), "X_");
  EXPECT_EQ(mentions.InWords(), "'X_\\x1b[31m\xEF\xBF\xBD'");
  mentions.AddFields(file.Components().front(), "x");
  EXPECT_LT(mentions.InWords().size(), 100U);
}

TEST(FieldWordsTest, ListWhatAFindingIsAboutInTheOrderOfTheFile) {
  const FoundFields fields = FileOf({{"X_3", "1"}, {"X_1", "1"}, {"Y", "1"}, {"X_2", "1"}, {"X_1", "1"}});
  const CVifView file(fields);
  const CComponentView& component = file.Components().front();
  CMentions mentions;
  EXPECT_TRUE(mentions.IsEmpty());
  mentions.AddField(component, "Z");
  EXPECT_TRUE(mentions.IsEmpty());
  mentions.AddField(component, "X_2");
  EXPECT_EQ(mentions.InWords(), "X_2");
  mentions.AddField(component, "X_1");
  EXPECT_EQ(mentions.InWords(), "X_1 and X_2");
  mentions.AddFields(component, "X_");
  EXPECT_EQ(mentions.InWords(), "X_3, X_1 and X_2");
  EXPECT_EQ(mentions.Size(), 3U);
  EXPECT_EQ(&mentions.First(), &fields[0]);
}

TEST(FieldWordsTest, LeaveOutTheFieldThatIsExcepted) {
  const FoundFields fields = FileOf({{"X_1", "1"}, {"X_2", "1"}});
  const CVifView file(fields);
  CMentions mentions;
  mentions.AddFields(file.Components().front(), "X_", "X_1");
  EXPECT_EQ(mentions.InWords(), "X_2");
}

TEST(FieldWordsTest, CutLongLists) {
  const FoundFields six = FileOf({{"A1", ""}, {"A2", ""}, {"A3", ""}, {"A4", ""}, {"A5", ""}, {"A6", ""}});
  CMentions mentions;
  for (const FoundField& found : six) mentions.Add(found, found.field.Name());
  EXPECT_EQ(mentions.InWords(), "A1, A2, A3, A4, A5 and A6");
  mentions.Add(six.back(), "B");
  EXPECT_EQ(mentions.InWords(), "A1, A2, A3, A4, A5 and 2 more");
}

}  // namespace
}  // namespace vifanalysis
