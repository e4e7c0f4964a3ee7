// What a page about one file shows.
#include "Example.h"
#include "report/Html.h"
#include "report/Markup.h"

#include <analysis/Report.h>
#include <analysis/Text.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace vifanalysis::reporttest {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// The row of a field in the list of all fields.
std::string Row(const std::string& page, std::size_t position) {
  return Between(page, " id=\"field-" + std::to_string(position) + "\">", "</tr>");
}

/// The content of a file.
std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::size_t PositionOf(const CExample& example, const Place& place, std::string_view name) {
  const FoundFields& fields = example.Fields();
  return static_cast<std::size_t>(std::find_if(fields.begin(), fields.end(),
                                               [&](const FoundField& found) {
                                                 return found.field.Indexes() == place && found.field.Name() == name;
                                               }) -
                                  fields.begin());
}

TEST(Report, ShowsEveryFieldOnce) {
  for (const std::filesystem::path& path : CleanExamples()) {
    const CExample example(path.filename().string());
    const std::string page = PageOf(example);
    for (std::size_t i = 0; i < example.Fields().size(); ++i) {
      EXPECT_THAT(Row(page, i), HasSubstr(Escaped(example.Fields()[i].field.Name()))) << path;
    }
    EXPECT_THAT(AllMatches(page, "<tr class=\"field\""), SizeIs(example.Fields().size())) << path;
  }
}

TEST(Report, EveryLinkLeadsToAnElementAndNoIdOccursTwice) {
  for (const std::filesystem::path& path : CleanExamples()) {
    const std::string page = PageOf(CExample(path.filename().string()));
    EXPECT_THAT(BrokenLinks(page), IsEmpty()) << path;
    EXPECT_THAT(RepeatedIds(page), IsEmpty()) << path;
  }
}

TEST(Report, BeginsWithTheProduct) {
  EXPECT_THAT(PageOf(CExample("gan-charger-65w.txt")), HasSubstr("<h1>Quillmere Power Works QPW-G65-1C</h1>"));
}

TEST(Report, IsNamedAfterTheFileWhereThereIsNoProductName) {
  EXPECT_THAT(MakeReport({"some.txt", {}, {}}), AllOf(HasSubstr("<h1>some.txt</h1>"), HasSubstr("<title>some.txt ")));
}

TEST(Report, DescribesEachPortInOneLine) {
  const std::string page = PageOf(CExample("two-port-laptop.xml"));
  EXPECT_THAT(page, HasSubstr("Component 1 \u00b7 Left</a></th><td>Type-C</td><td>DRP</td>"
                              "<td>18 W, 5 to 9 V, up to 3 A</td><td>65 W, 5 to 20 V, up to 3.25 A</td>"));
}

TEST(Report, SaysWhatACableCarries) {
  const std::string page = PageOf(CExample("active-cable.txt"));
  EXPECT_THAT(page, HasSubstr("<td>carries 5 A, 50 V, EPR</td>"));
  EXPECT_THAT(page, HasSubstr("<h3>What the cable carries</h3>"));
}

TEST(Report, NamesPowerThatCanBeChosen) {
  EXPECT_THAT(PageOf(CExample("gan-charger-65w.txt")), HasSubstr("<td>65 W, 3.3 to 21 V, up to 3.25 A, PPS</td>"));
}

TEST(Report, DescribesASourceWithoutPdosByItsTypeCCurrent) {
  CExample dock("usb4-dock.xml");
  dock.RemoveGroup(SrcPdo(3, 1)).Remove(Component(3), "PD_Power_As_Source");
  EXPECT_THAT(PageOf(dock), HasSubstr("<td>Type-C: 1.5A</td>"));
}

TEST(Report, HasAPictureAndATableOfEachSideWithPdos) {
  const std::string page = PageOf(CExample("two-port-laptop.xml"));
  EXPECT_THAT(AllMatches(page, "<svg"), SizeIs(4));
  EXPECT_THAT(AllMatches(page, "<caption>Source PDOs</caption>"), SizeIs(2));
  EXPECT_THAT(AllMatches(page, "<caption>Sink PDOs</caption>"), SizeIs(2));
}

TEST(Report, ShowsSvidsAndTheirModes) {
  const std::string page = PageOf(CExample("usb4-dock.xml"));
  EXPECT_THAT(page, HasSubstr("<strong>SOP SVID 1: 0xFF01 (DisplayPort)</strong>"));
  EXPECT_THAT(PageOf(CExample("active-cable.txt")), HasSubstr("<strong>Cable SVID 1: 0xFF01 DisplayPort</strong>"));
}

TEST(Report, ShowsRoutersWithTheirPortsProtocolsAndEndpoints) {
  const std::string page = PageOf(CExample("usb4-dock.xml"));
  const std::string routers = Between(page, "<section id=\"routers\">", "</section>");
  EXPECT_THAT(routers, HasSubstr("<li>Component 1: Gen 3 (40Gb); USB3, DP, PCIe, TBT3</li>"));
  EXPECT_THAT(routers, HasSubstr("<td>E7F0</td><td>0D4C</td><td>0C0330 (USB host controller)</td>"));
  EXPECT_THAT(routers, HasSubstr("<dt>Lane Adapters</dt>"));
  EXPECT_THAT(PageOf(CExample("gan-charger-65w.txt")), Not(HasSubstr("id=\"routers\"")));
}

TEST(Report, GivesTheMeaningOfANumberThatTheFileDoesNotDescribe) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 2), "Src_PDO_Voltage", "180");
  const std::string row = Row(PageOf(charger), PositionOf(charger, SrcPdo(1, 2), "Src_PDO_Voltage"));
  EXPECT_THAT(row, HasSubstr("<span class=\"value\">180</span> <span class=\"meaning\">9 V</span>"));
}

TEST(Report, ShowsTheFilesOwnDescription) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "PD_Port_Type", "3", "the provider");
  const std::string row = Row(PageOf(charger), PositionOf(charger, Component(1), "PD_Port_Type"));
  EXPECT_THAT(row, HasSubstr("<span class=\"value\">3</span> <span class=\"description\">the provider</span>"));
}

TEST(Report, ExplainsAFieldWhereItFirstOccurs) {
  CExample charger("gan-charger-65w.txt");
  const std::string page = PageOf(charger);
  const std::string first = Row(page, PositionOf(charger, SrcPdo(1, 1), "Src_PDO_Voltage"));
  const std::string second = Row(page, PositionOf(charger, SrcPdo(1, 2), "Src_PDO_Voltage"));
  EXPECT_THAT(first, AllOf(HasSubstr("id=\"explain-Src_PDO_Voltage\""), HasSubstr("<b>Unit</b> 50 mV (fixed)")));
  EXPECT_THAT(second, AllOf(HasSubstr("href=\"#explain-Src_PDO_Voltage\""), Not(HasSubstr("<details"))));
}

TEST(Report, DoesNotExplainANameThatNobodyHas) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Nobodys_Name", "1");
  const std::string row = Row(PageOf(charger), PositionOf(charger, Component(1), "Nobodys_Name"));
  EXPECT_THAT(row, AllOf(HasSubstr("Nobodys_Name"), Not(HasSubstr("<details"))));
}

TEST(Report, LinksAFindingToItsFieldAndItsRule) {
  const CExample charger("gan-charger-65w.txt");
  const std::vector<Finding> findings = {{Severity::Error, "pdo-above-rating", 7, 3, "x", "Component 1: too much", 5},
                                         {Severity::Note, "placeholder", 0, 0, "", "of no field"}};
  const std::string page = PageOf(charger, findings);
  EXPECT_THAT(page, HasSubstr("<a href=\"#field-5\">Component 1: too much</a><span class=\"place\"> line 7, column 3 "
                              "<a href=\"#rule-pdo-above-rating\">pdo-above-rating</a></span>"));
  EXPECT_THAT(page, HasSubstr("</span> of no field<span class=\"place\">  "));
  EXPECT_THAT(page, HasSubstr(">1 error</a>"));
  EXPECT_THAT(page, HasSubstr(">0 warnings</a>"));
  EXPECT_THAT(page, HasSubstr(">1 note</a>"));
  EXPECT_THAT(BrokenLinks(page), IsEmpty());
}

TEST(Report, SaysThatThereAreNoFindings) {
  EXPECT_THAT(PageOf(CExample("gan-charger-65w.txt")), HasSubstr("<p>None. What the file declares is consistent"));
}

TEST(Report, TextsFromTheFileAreText) {
  const std::string hostile = "</style><script>alert(1)</script>\"><img src=x onerror=alert(1)>&amp;\x01\xff'";
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 2), "Src_PDO_Voltage", "180", hostile);
  charger.Add(Component(1), hostile, "1").Add(Component(1), "Some_Name", hostile);
  std::vector<CVIFField> fields = FieldsOf(charger);
  const std::vector<Finding> findings = {{Severity::Error, hostile, 1, 1, hostile, hostile, 1}};
  const std::string page = MakeReport({hostile, fields, findings});
  EXPECT_THAT(page, HasSubstr("&lt;/style&gt;&lt;script&gt;alert(1)&lt;/script&gt;&quot;&gt;&lt;img src=x "
                              "onerror=alert(1)&gt;&amp;amp;\\x01"));
  EXPECT_THAT(AllMatches(page, "<script"), SizeIs(1));
  EXPECT_THAT(AllMatches(page, "<style"), SizeIs(1));
  EXPECT_THAT(page, Not(HasSubstr("<img")));
  EXPECT_THAT(page, Not(HasSubstr("\x01")));
  EXPECT_EQ(ValidUtf8(page), page);
}

TEST(Report, AllowsOnlyItsOwnStyleAndScript) {
  const std::string page = PageOf(CExample("gan-charger-65w.txt"));
  const std::string policy = Between(page, "content=\"", "\"");
  const std::string style = Between(policy, "style-src 'sha256-", "'");
  const std::string script = Between(policy, "script-src 'sha256-", "'");
  EXPECT_EQ(policy, "default-src 'none'; style-src 'sha256-" + style + "'; script-src 'sha256-" + script +
                        "'; base-uri 'none'; form-action 'none'");
  constexpr std::size_t hashLength = 44;  // of 32 bytes in base64
  EXPECT_EQ(style.size(), hashLength);
  EXPECT_EQ(script.size(), hashLength);
  EXPECT_THAT(AllMatches(page, "<script"), SizeIs(1));
  EXPECT_THAT(AllMatches(page, "<style"), SizeIs(1));
  EXPECT_THAT(AllMatches(page, " style="), IsEmpty());
  EXPECT_THAT(AllMatches(page, " src="), IsEmpty());
}

TEST(Report, ShowsOnlyTheFirstOfTooManyGroups) {
  CExample charger("gan-charger-65w.txt");
  for (std::uint64_t pdo = 7; pdo <= 100; ++pdo) charger.Add(SrcPdo(1, pdo), "Src_PDO_Supply_Type", "0");
  const std::string page = PageOf(charger);
  EXPECT_THAT(page, HasSubstr("36 more PDOs are in the list of <a href=\"#fields\">all fields</a>."));
  EXPECT_THAT(page, HasSubstr("<caption>Component 1, Source PDO 100</caption>"));
}

TEST(Report, IsTheSameEachTime) {
  const CExample dock("usb4-dock.xml");
  EXPECT_EQ(PageOf(dock), PageOf(dock));
}

TEST(Report, AFileWithoutFieldsHasAPage) {
  const std::string page = MakeReport({"empty.txt", {}, {}});
  EXPECT_THAT(BrokenLinks(page), IsEmpty());
  EXPECT_THAT(page, HasSubstr("<h2>All fields</h2>"));
}

TEST(Report, APositionThatIsNoFieldGivesAFindingWithoutALink) {
  const CExample charger("gan-charger-65w.txt");
  const std::size_t beyond = charger.Fields().size();
  const std::string page = PageOf(charger, {{Severity::Error, "pdo-limits", 1, 0, "", "of no field", beyond}});
  EXPECT_THAT(page, HasSubstr("</span> of no field<span"));
  EXPECT_THAT(BrokenLinks(page), IsEmpty());
}

TEST(Report, SaysWhatANumberStandsForRatherThanTheFilesTextForIt) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "PD_Port_Type", "4", "Provider Only");
  EXPECT_THAT(PageOf(charger), HasSubstr("<td>DRP, SRC</td>"));
}

TEST(Report, DoesNotTakeAnOpenChoiceForAnAnswer) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "PD_Port_Type", "3", "<select>");
  EXPECT_THAT(PageOf(charger), HasSubstr("<td>not chosen, SRC</td>"));
}

TEST(Report, NamesNoPowerThatTheFileDoesNotDeclare) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(Component(1), "PD_Power_As_Source");
  EXPECT_THAT(PageOf(charger), HasSubstr("<td>3.3 to 21 V, up to 3.25 A, PPS</td>"));
}

TEST(Report, NamesAPowerOfZero) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "PD_Power_As_Source", "0");
  EXPECT_THAT(PageOf(charger), HasSubstr("<td>0 W, 3.3 to 21 V, up to 3.25 A, PPS</td>"));
}

TEST(Report, NamesAHostOfUnknownSpeed) {
  CExample laptop("two-port-laptop.xml");
  laptop.Remove(Component(1), "Host_Speed");
  EXPECT_THAT(PageOf(laptop), HasSubstr("<td>host</td>"));
}

TEST(Report, GivesTheKindAndTheRatingOfAnAvsPdo) {
  const std::string page = PageOf(CExample("epr-charger-140w.txt"));
  EXPECT_THAT(page, HasSubstr("<td>EPR AVS</td><td>15 to 28 V</td><td>\u2013</td><td>140 W</td>"));
  EXPECT_THAT(page, HasSubstr("the picture assumes 3 A for SPR AVS and 5 A for EPR AVS"));
}

TEST(Report, ShowsEachOfTwoFieldsOfOneName) {
  CExample dock("usb4-dock.xml");
  FoundFields fields = dock.Fields();
  const auto svid = std::find_if(fields.begin(), fields.end(), [](const FoundField& found) {
    return std::string_view(found.field.Name()) == "SVID_Modes_Fixed_SOP";
  });
  ASSERT_NE(svid, fields.end());
  std::vector<CVIFField> declared = FieldsOf(dock);
  declared.emplace_back(true, "SVID_Modes_Fixed_SOP", "0", svid->field.Indexes());
  const std::string page = MakeReport({"a.xml", declared, {}});
  EXPECT_THAT(page,
              HasSubstr("<li>Modes Fixed: <a href=\"#field-" + std::to_string(declared.size() - 1) + "\">NO</a>"));
}

TEST(Report, ShowsThePicturesThatAreCommitted) {
  for (const std::filesystem::path& path : CleanExamples()) {
    const std::string page = PageOf(CExample(path.filename().string()));
    for (const std::size_t at : AllMatches(page, "<svg")) {
      const std::size_t from = page.find("<line", at);
      const std::string drawn = page.substr(from, page.find("</svg>", from) - from);
      const std::filesystem::directory_iterator pictures(VIF_PICTURES);
      EXPECT_TRUE(std::any_of(begin(pictures), end(pictures), [&](const auto& entry) {
        return ContentOf(entry.path()).find(drawn) != std::string::npos;
      })) << path;
    }
  }
}

}  // namespace

}  // namespace vifanalysis::reporttest
