// That the text form and the XML form of one product do not differ.
#include "diff/Report.h"
#include "diff/Vif.h"
#include "support/Random.h"

#include <VendorInfoFile.h>
#include <analysis/Differences.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string>
#include <string_view>

namespace vifanalysis::difftest {

namespace {

using testing::IsEmpty;

/// Where the XML form has a text of the text form.
GroupPlace PlaceOfText(std::string_view name) { return name == "Port_Label" ? Component(1) : At({eVifLocVif, 0}); }

/// What loading the XML form gives for a field of the text form.
CVIFField InXmlForm(const CVIFField& field) {
  const std::string name = *field.Name() == '$' ? field.Name() + 1 : field.Name();
  const std::string value = field.Value();
  if (name == "VIF_Specification") return {false, name, "Version " + value, "Version " + value, At({eVifLocVif, 0})};
  if (name == "VIF_Producer") return {false, name, "Maker Writer 1.0", "Maker Writer 1.0", At({eVifLocVif, 0})};
  if (!field.IsNumeric()) return XmlText(PlaceOfText(name), name, value);
  const bool isHexadecimal = value.starts_with("0x");
  const std::string decimal = isHexadecimal ? std::to_string(field.GetULongNumericValue()) : value;
  return {true, name, decimal, field.Description(), field.Indexes()};
}

Fields InXmlForm(const Fields& text) {
  Fields xml;
  for (const CVIFField& field : text) xml.push_back(InXmlForm(field));
  return xml;
}

void ExpectSame(const Fields& text, const Fields& xml) {
  for (const Differences& differences : {Compare(text, xml), Compare(xml, text)}) {
    EXPECT_THAT(FieldReport(differences), IsEmpty());
    EXPECT_THAT(GroupReport(differences), IsEmpty());
  }
}

TEST(TwoForms, OfTheExampleThatIsInBothDoNotDiffer) {
  const std::filesystem::path folder = VIF_EXAMPLES;
  const Fields text = CVendorInfoFile(folder / "gan-charger-65w.txt").Fields();
  ASSERT_THAT(text, testing::Not(IsEmpty()));
  ExpectSame(text, CVendorInfoFile(folder / "gan-charger-65w.xml").Fields());
}

TEST(TwoForms, OfEachTextExampleDoNotDiffer) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(VIF_EXAMPLES)) {
    if (entry.path().extension() != ".txt") continue;
    SCOPED_TRACE(entry.path().filename());
    const Fields text = CVendorInfoFile(entry.path()).Fields();
    ExpectSame(text, InXmlForm(text));
    ++count;
  }
  EXPECT_GE(count, 3);
}

/// Writes one product in both forms.
class CProduct {
 public:
  explicit CProduct(std::mt19937_64& generator) : m_generator(generator) {
    AddTexts();
    for (const char* name : {"PID_SOP", "XID_SOP", "USB_VID_SOP", "Num_Src_PDOs", "Unknown"}) {
      if (Maybe()) AddNumber(Component(1), name);
    }
    if (Maybe()) AddBoolean(Component(1), "USB4_Supported", "USB4_Supported");
    if (Maybe()) AddBoolean(Component(1), "Externally_Powered", "Unconstrained_Power");
    for (std::uint64_t pdo = 1; Maybe(); ++pdo) {
      AddNumber(SrcPdo(pdo), "Src_PDO_Voltage");
      AddNumber(SrcPdo(pdo), "Src_PDO_Max_Current");
    }
    for (std::uint64_t svid = 1; Maybe(); ++svid) {
      const GroupPlace place = At({eVifLocComponent, 1}, {eVifLocSopSvid, svid});
      AddNumber(place, "SVID_SOP");
      AddNumber(At(place[0], place[1], {eVifLocSopSvidMode, 1}), "SVID_Mode_Recog_Value_SOP");
    }
    std::shuffle(xml.begin(), xml.end(), m_generator);
  }

  Fields text;
  Fields xml;

 private:
  std::size_t Below(std::size_t bound) { return testsupport::RandomBelow(m_generator, bound); }
  bool Maybe() { return Below(3) != 0; }

  void AddTexts() {
    for (const char* name : {"Vendor_Name", "Model_Part_Number", "Product_Revision", "TID", "Port_Label"}) {
      if (!Maybe()) continue;
      text.push_back(Text(name, "Text " + std::to_string(Below(9))));
      xml.push_back(InXmlForm(text.back()));
    }
  }

  void AddNumber(const GroupPlace& place, const std::string& name) {
    const std::string digits = std::to_string(Below(10));
    const bool isHexadecimal = Maybe();
    text.push_back(Number(place, name, isHexadecimal ? "0x0A" + digits : "16" + digits));
    xml.push_back(InXmlForm(text.back()));
  }

  void AddBoolean(const GroupPlace& place, const std::string& nameInText, const std::string& nameInXml) {
    const bool isYes = Maybe();
    const std::string code = isYes ? "1" : "0";
    text.push_back(Number(place, nameInText, Maybe() ? (isYes ? "YES" : "NO") : code));
    xml.push_back(Number(place, nameInXml, Maybe() ? (isYes ? "true" : "false") : code));
  }

  std::mt19937_64& m_generator;
};

TEST(TwoForms, OfGeneratedProductsDoNotDiffer) {
  std::mt19937_64 generator = testsupport::SeededGenerator();
  SCOPED_TRACE(testsupport::SeedMessage());
  for (int round = 0; round < 1'000 && !testing::Test::HasFailure(); ++round) {
    const CProduct product(generator);
    ExpectSame(product.text, product.xml);
  }
}

TEST(TwoForms, DifferInWhatIsChangedInOneOfThem) {
  std::mt19937_64 generator = testsupport::SeededGenerator();
  SCOPED_TRACE(testsupport::SeedMessage());
  for (int round = 0; round < 1'000 && !testing::Test::HasFailure(); ++round) {
    CProduct product(generator);
    if (product.text.empty()) continue;
    CVIFField& field = product.text[testsupport::RandomBelow(generator, product.text.size())];
    field = CVIFField(field.IsNumeric(), field.Name(), "77", "", field.Indexes());
    EXPECT_THAT(FieldReport(Compare(product.text, product.xml)), testing::SizeIs(1));
  }
}

}  // namespace

}  // namespace vifanalysis::difftest
