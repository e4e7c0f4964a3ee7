// How the fields of a product's text VIF differ from those of its XML VIF, shown with the charger that has both.
#include "ExampleFolder.h"
#include "VendorInfoFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;

// A name for a field that is the same in both forms: without the "$", and with the number of its PDO.
std::string Key(const CVIFField& field) {
  const char* name = field.Name();
  std::string key = *name == '$' ? name + 1 : name;
  if (field.HasIndex(eVifLocSrcPdo)) key += std::to_string(field.Index(eVifLocSrcPdo));
  return key;
}

std::vector<std::string> Keys(const std::vector<CVIFField>& fields) {
  std::vector<std::string> keys;
  for (const CVIFField& field : fields) keys.push_back(Key(field));
  return keys;
}

struct Pair {
  CVIFField text;
  CVIFField xml;
};

// The fields whose value is text, such as `$Vendor_Name: "..."` and `<Vendor_Name>...</Vendor_Name>`.
bool IsString(const Pair& field) { return !field.text.IsNumeric(); }

bool IsHexadecimal(const Pair& field) { return std::string_view(field.text.Value()).starts_with("0x"); }

class TextAndXmlForm : public testing::Test {
 protected:
  TextAndXmlForm() {
    for (const CVIFField& field : *m_text) m_pairs[Key(field)].text = field;
    for (const CVIFField& field : *m_xml) m_pairs[Key(field)].xml = field;
  }

  // The pairs for which the predicate holds.
  template <typename Predicate>
  std::vector<Pair> Pairs(const Predicate& predicate) const {
    std::vector<Pair> found;
    for (const auto& [key, pair] : m_pairs) {
      if (predicate(pair)) found.push_back(pair);
    }
    EXPECT_FALSE(found.empty());
    return found;
  }

  const VifFieldList m_text = CVendorInfoFile(ExampleVif("gan-charger-65w.txt")).GetFields();
  const VifFieldList m_xml = CVendorInfoFile(ExampleVif("gan-charger-65w.xml")).GetFields();
  std::map<std::string, Pair> m_pairs;
};

TEST_F(TextAndXmlForm, HoldTheSameFields) {
  EXPECT_THAT(Keys(*m_xml), testing::UnorderedElementsAreArray(Keys(*m_text)));
  EXPECT_EQ(m_pairs.size(), m_text->size()) << "a key names two fields";
}

TEST_F(TextAndXmlForm, AgreeInEverythingButStringsAndHexadecimalValues) {
  for (const auto& [text, xml] : Pairs([](const Pair& pair) { return !IsString(pair) && !IsHexadecimal(pair); })) {
    EXPECT_STREQ(xml.Name(), text.Name());
    EXPECT_STREQ(xml.Value(), text.Value()) << text.Name();
    EXPECT_STREQ(xml.Description(), text.Description()) << text.Name();
    EXPECT_TRUE(xml.IsNumeric()) << text.Name();
    EXPECT_EQ(xml.GetULongNumericValue(), text.GetULongNumericValue()) << text.Name();
    EXPECT_EQ(xml.Indexes(), text.Indexes()) << text.Name();
  }
}

TEST_F(TextAndXmlForm, DifferInHexadecimalValuesOnlyInThatXmlHasThemInDecimal) {
  for (const auto& [text, xml] : Pairs(IsHexadecimal)) {
    EXPECT_EQ(xml.Value(), std::to_string(text.GetULongNumericValue())) << text.Name();

    EXPECT_STREQ(xml.Name(), text.Name());
    EXPECT_STREQ(xml.Description(), text.Description()) << text.Name();
    EXPECT_TRUE(xml.IsNumeric()) << text.Name();
    EXPECT_EQ(xml.GetULongNumericValue(), text.GetULongNumericValue()) << text.Name();
    EXPECT_EQ(xml.Indexes(), text.Indexes()) << text.Name();
  }
}

TEST_F(TextAndXmlForm, HaveTheSameStringsAndThoseAreNumericInNeither) {
  std::vector<std::string> names;
  for (const auto& [text, xml] : Pairs(IsString)) {
    names.emplace_back(xml.Name());
    EXPECT_FALSE(xml.IsNumeric()) << text.Name();
  }
  EXPECT_THAT(names, ElementsAre("Model_Part_Number", "Port_Label", "Product_Revision", "TID", "VIF_Producer",
                                 "VIF_Specification", "Vendor_Name"));
}

TEST_F(TextAndXmlForm, NameStringsWithADollarInTextOnly) {
  for (const auto& [text, xml] : Pairs(IsString)) EXPECT_EQ(text.Name(), std::string("$") + xml.Name());
}

TEST_F(TextAndXmlForm, PutStringsInNoGroupInText) {
  for (const auto& [text, xml] : Pairs(IsString)) EXPECT_EQ(text.IndexCount(), 0u) << text.Name();
}

TEST_F(TextAndXmlForm, PutStringsInTheFilesHeaderOrTheComponentInXml) {
  for (const auto& [text, xml] : Pairs(IsString)) {
    const bool isOfComponent = std::string_view(xml.Name()) == "Port_Label";
    const VifIndex place = isOfComponent ? VifIndex{eVifLocComponent, 1} : VifIndex{eVifLocVif, 0};
    EXPECT_THAT(xml.Indexes(), ElementsAre(place, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX));
  }
}

// The description in text is the comment after the string; XML has none.
TEST_F(TextAndXmlForm, KeepAStringAsTheValueInTextAndAsTheDescriptionInXml) {
  const Pair& label = m_pairs["Port_Label"];
  EXPECT_STREQ(label.text.Value(), "C1");
  EXPECT_STREQ(label.text.Description(), "printed beside the port");
  EXPECT_STREQ(label.xml.Value(), "");
  EXPECT_STREQ(label.xml.Description(), "C1");
  for (const char* name : {"Vendor_Name", "Model_Part_Number", "Product_Revision", "TID"}) {
    const auto& [text, xml] = m_pairs[name];
    EXPECT_STRNE(text.Value(), "") << name;
    EXPECT_STREQ(text.Description(), "") << name;
    EXPECT_STREQ(xml.Value(), "") << name;
    EXPECT_STREQ(xml.Description(), text.Value()) << name;
  }
}

// In XML these two are assembled from texts, and have them as value and description.
TEST_F(TextAndXmlForm, PrefixTheFormatVersionWithTheWordVersionInXmlOnly) {
  const auto& [text, xml] = m_pairs["VIF_Specification"];
  EXPECT_STREQ(text.Value(), "3.26");
  EXPECT_STREQ(text.Description(), "");
  EXPECT_STREQ(xml.Value(), "Version 3.26");
  EXPECT_STREQ(xml.Description(), "Version 3.26");
}

TEST_F(TextAndXmlForm, AssembleTheProducerFromVendorNameAndVersionInXml) {
  const auto& [text, xml] = m_pairs["VIF_Producer"];
  EXPECT_STREQ(text.Value(), "VIF example, written by hand");
  EXPECT_STREQ(text.Description(), "");
  EXPECT_STREQ(xml.Value(), "VIF example written by hand 1.0");
  EXPECT_STREQ(xml.Description(), "VIF example written by hand 1.0");
}

TEST_F(TextAndXmlForm, DifferInOrderOnlyInThatXmlHasTheProducerFirstAndThePdosLast) {
  std::vector<CVIFField> fields = *m_text;
  ASSERT_THAT(Keys({fields[0], fields[1]}), ElementsAre("VIF_Specification", "VIF_Producer"));
  std::swap(fields[0], fields[1]);
  std::stable_partition(fields.begin(), fields.end(),
                        [](const CVIFField& field) { return !field.HasIndex(eVifLocSrcPdo); });
  EXPECT_EQ(Keys(*m_xml), Keys(fields));
}

}  // namespace
