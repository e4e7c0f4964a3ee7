// What a page about one file shows.
#include "Example.h"
#include "report/Html.h"
#include "report/Markup.h"

#include <analysis/Report.h>
#include <analysis/Text.h>

#include <gmock/gmock.h>

#include <algorithm>

namespace vifanalysis::reporttest {

namespace {

using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

/// The row of a field in the list of all fields.
std::string Row(const std::string& page, std::size_t position) {
  return Between(page, " id=\"field-" + std::to_string(position) + "\">", "</tr>");
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
  EXPECT_THAT(page, HasSubstr("Component 1 \u00b7 Left</a></th><td>Type-C\u00ae</td><td>DRP</td>"
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
  EXPECT_THAT(PageOf(dock), HasSubstr("<td>Type-C: "));
}

TEST(Report, HasAPictureAndATableOfEachSideWithPdos) {
  const std::string page = PageOf(CExample("two-port-laptop.xml"));
  EXPECT_THAT(AllMatches(page, "<svg"), SizeIs(4));
  EXPECT_THAT(AllMatches(page, "<caption>Source PDOs</caption>"), SizeIs(2));
  EXPECT_THAT(AllMatches(page, "<caption>Sink PDOs</caption>"), SizeIs(2));
}

TEST(Report, ShowsSvidsAndTheirModes) {
  const std::string page = PageOf(CExample("usb4-dock.xml"));
  EXPECT_THAT(page, HasSubstr("<strong>SOP SVID 1: 0xFF01 \u00b7 FF01 (DisplayPort)</strong>"));
  EXPECT_THAT(PageOf(CExample("active-cable.txt")),
              HasSubstr("<strong>Cable SVID 1: 0xFF01 \u00b7 DisplayPort</strong>"));
}

TEST(Report, ShowsRoutersWithTheirPortsProtocolsAndEndpoints) {
  const std::string page = PageOf(CExample("usb4-dock.xml"));
  const std::string routers = Between(page, "<section id=\"routers\">", "</section>");
  EXPECT_THAT(routers, HasSubstr("<li>Component 1: Gen 3 (40Gb); USB3, DP, PCIe, TBT3</li>"));
  EXPECT_THAT(routers, HasSubstr("<td>E7F0</td><td>0D4C</td><td>0C0330 (USB host controller)</td>"));
  EXPECT_THAT(routers, HasSubstr("<dt>Num Lane Adapters</dt>"));
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
  EXPECT_THAT(PageOf(CExample("gan-charger-65w.txt")), HasSubstr("<p>None: what the file declares is consistent"));
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
  EXPECT_THAT(page, testing::ContainsRegex("content=\"default-src 'none'; style-src 'sha256-[A-Za-z0-9+/]*='; "
                                           "script-src 'sha256-[A-Za-z0-9+/]*='; base-uri 'none'; "
                                           "form-action 'none'\""));
  EXPECT_THAT(AllMatches(page, "<script"), SizeIs(1));
  EXPECT_THAT(AllMatches(page, "<style"), SizeIs(1));
  EXPECT_THAT(AllMatches(page, " style="), IsEmpty());
  EXPECT_THAT(AllMatches(page, " src="), IsEmpty());
}

TEST(Report, ShowsOnlyTheFirstOfTooManyGroups) {
  CExample charger("gan-charger-65w.txt");
  for (std::uint64_t pdo = 7; pdo <= 100; ++pdo) charger.Add(SrcPdo(1, pdo), "Src_PDO_Supply_Type", "0");
  const std::string page = PageOf(charger);
  EXPECT_THAT(page, HasSubstr("And 36 more PDOs, which are among <a href=\"#fields\">all fields</a>."));
  EXPECT_THAT(page, HasSubstr("<caption>Component 1, Source PDO 100</caption>"));
}

TEST(Report, IsTheSameEachTime) {
  const CExample dock("usb4-dock.xml");
  EXPECT_EQ(PageOf(dock), PageOf(dock));
}

TEST(Report, AFileWithoutFieldsHasAPage) {
  const std::string page = MakeReport({"empty.txt", {}, {}});
  EXPECT_THAT(BrokenLinks(page), IsEmpty());
  EXPECT_THAT(page, HasSubstr("All fields"));
}

}  // namespace

}  // namespace vifanalysis::reporttest
