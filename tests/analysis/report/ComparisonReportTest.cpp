// What a page about two files shows.
#include "Example.h"
#include "report/Html.h"

#include <analysis/Report.h>

#include <gmock/gmock.h>

namespace vifanalysis::reporttest {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

std::string PageOfTwo(const CExample& before, const CExample& after, const std::vector<Finding>& findingsBefore = {},
                      const std::vector<Finding>& findingsAfter = {}) {
  const std::vector<CVIFField> first = FieldsOf(before);
  const std::vector<CVIFField> second = FieldsOf(after);
  return MakeReport({"before.txt", first, findingsBefore}, {"after.txt", second, findingsAfter});
}

std::string Section(const std::string& page, const std::string& id) {
  return Between(page, "<section id=\"" + id + "\"", "</section>");
}

TEST(ComparisonReport, SaysThatTwoFilesMeanTheSame) {
  const std::string page = PageOfTwo(CExample("gan-charger-65w.txt"), CExample("gan-charger-65w.xml"));
  EXPECT_THAT(page, HasSubstr("<p>None. The two files mean the same.</p>"));
  EXPECT_THAT(AllMatches(page, "<tr class=\"changed"), IsEmpty());
  EXPECT_THAT(AllMatches(page, "<tr class=\"field changed"), IsEmpty());
  EXPECT_THAT(AllMatches(page, "<tr class=\"field removed"), IsEmpty());
}

TEST(ComparisonReport, EveryLinkLeadsToAnElementAndNoIdOccursTwice) {
  for (const std::filesystem::path& path : CleanExamples()) {
    const std::string page = PageOfTwo(CExample("usb4-dock.xml"), CExample(path.filename().string()));
    EXPECT_THAT(BrokenLinks(page), IsEmpty()) << path;
    EXPECT_THAT(RepeatedIds(page), IsEmpty()) << path;
  }
}

TEST(ComparisonReport, ShowsEveryFieldOfBoth) {
  const CExample before("usb4-dock.xml");
  const CExample after("two-port-laptop.xml");
  const std::string page = PageOfTwo(before, after);
  EXPECT_THAT(AllMatches(page, " id=\"field-"), SizeIs(after.Fields().size()));
}

TEST(ComparisonReport, ShowsAChangedValueNextToTheEarlierOne) {
  const CExample before("gan-charger-65w.txt");
  CExample after("gan-charger-65w.txt");
  after.Set(SrcPdo(1, 2), "Src_PDO_Voltage", "240");
  const std::string page = PageOfTwo(before, after);
  const std::string differences = Section(page, "differences");
  EXPECT_THAT(differences, AllOf(HasSubstr("Component 1, Source PDO 2 "), HasSubstr("<span class=\"value\">180</span>"),
                                 HasSubstr("<span class=\"value\">240</span>")));
  EXPECT_THAT(Section(page, "fields"), HasSubstr("<tr class=\"field changed\""));
}

TEST(ComparisonReport, MarksFieldsThatOnlyOneFileHas) {
  CExample before("gan-charger-65w.txt");
  CExample after("gan-charger-65w.txt");
  before.Add(Component(1), "Some_Name", "1");
  after.Add(Component(1), "Other_Name", "2");
  const std::string fields = Section(PageOfTwo(before, after), "fields");
  EXPECT_THAT(AllMatches(fields, "<tr class=\"field added\""), SizeIs(1));
  EXPECT_THAT(AllMatches(fields, "<tr class=\"field removed\""), SizeIs(1));
}

TEST(ComparisonReport, ShowsRemovedGroupsByThemselves) {
  const CExample before("gan-charger-65w.txt");
  CExample after("gan-charger-65w.txt");
  after.RemoveGroup(SrcPdo(1, 6));
  const std::string page = PageOfTwo(before, after);
  EXPECT_THAT(page, HasSubstr("<caption>Component 1, Source PDO 6 of before.txt</caption>"));
  EXPECT_THAT(Section(page, "differences"), HasSubstr("<li class=\"removed\">Component 1, Source PDO 6: removed"));
}

TEST(ComparisonReport, DrawsThePowerOfBothInOnePicture) {
  const CExample charger("gan-charger-65w.txt");
  const std::string page = PageOfTwo(charger, charger);
  EXPECT_THAT(AllMatches(page, "<svg"), SizeIs(1));
  EXPECT_THAT(page, AllOf(HasSubstr("<caption>Source PDOs \u00b7 before.txt</caption>"),
                          HasSubstr("<caption>Source PDOs \u00b7 after.txt</caption>")));
}

TEST(ComparisonReport, ShowsAPortThatOnlyOneFileHas) {
  const CExample laptop("two-port-laptop.xml");
  const CExample charger("gan-charger-65w.txt");
  for (const std::string& page : {PageOfTwo(laptop, charger), PageOfTwo(charger, laptop)}) {
    EXPECT_THAT(page, HasSubstr("id=\"component-2\""));
    EXPECT_THAT(page, HasSubstr("\u00b7 Right"));
  }
}

TEST(ComparisonReport, ShowsRoutersThatOnlyOneFileHas) {
  CExample without("usb4-dock.xml");
  without.RemoveGroup(Router(1));
  const std::string page = PageOfTwo(CExample("usb4-dock.xml"), without);
  EXPECT_THAT(Section(page, "routers"),
              AllOf(HasSubstr("<h3>Router 0</h3>"), HasSubstr("<h3>Router 1 (only in before.txt)</h3>")));
}

TEST(ComparisonReport, ShowsWhichFileHasAFinding) {
  const CExample charger("gan-charger-65w.txt");
  const Finding both = {Severity::Note, "placeholder", 1, 0, "TID", "is in both", 1};
  const Finding fixed = {Severity::Error, "pdo-limits", 2, 0, "A", "was fixed", 2};
  const Finding added = {Severity::Warning, "role-mismatch", 3, 0, "B", "is new", 3};
  const std::string findings = Section(PageOfTwo(charger, charger, {both, fixed}, {both, added}), "findings");
  EXPECT_THAT(findings,
              AllOf(HasSubstr("<a href=\"#field-3\">is new</a>"), HasSubstr("<a href=\"#field-2\">was fixed</a>"),
                    HasSubstr("<h3>In both: 1</h3>"), HasSubstr("<a href=\"#field-1\">is in both</a>")));
}

TEST(ComparisonReport, LinksWhatTheFirstFileHasToTheRowThatShowsIt) {
  CExample before("gan-charger-65w.txt");
  before.Add(Component(1), "Some_Name", "1");
  CExample after("gan-charger-65w.txt");
  after.RemoveGroup(SrcPdo(1, 2));  // the text form numbers PDOs by their names, so those after it keep their numbers
  const FoundFields& fields = before.Fields();
  std::vector<Finding> findings;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    findings.push_back({Severity::Note, "placeholder", i, 0, fields[i].field.Name(), "field " + std::to_string(i), i});
  }
  const std::string page = PageOfTwo(before, after, findings, {});
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const std::string id = Between(page, "<a href=\"#", "\">field " + std::to_string(i) + "</a>");
    const std::string link = id.substr(id.find_last_of('#') + 1);
    const std::string row = Between(page, " id=\"" + link + "\">", "</tr>");
    EXPECT_THAT(row, HasSubstr(fields[i].field.Name())) << i;
  }
}

TEST(ComparisonReport, ReadsNumbersThatAreOnlySpelledDifferentlyAsTheSame) {
  const CExample before("gan-charger-65w.txt");
  CExample after("gan-charger-65w.txt");
  after.Set(Component(1), "PD_Port_Type", "0x3", "provides power");
  EXPECT_THAT(AllMatches(PageOfTwo(before, after), "<tr class=\"changed"), IsEmpty());
}

TEST(ComparisonReport, PairsRoutersAsTheyAreAligned) {
  const CExample before("usb4-dock.xml");
  CExample after("usb4-dock.xml");
  after.RemoveGroup(Router(0));
  const std::string routers = Section(PageOfTwo(before, after), "routers");
  EXPECT_THAT(routers, AllOf(HasSubstr("<h3>Router 0 (only in before.txt)</h3>"), HasSubstr("<h3>Router 1</h3>")));
  const std::string second = Between(routers, "<h3>Router 1</h3>", "<h3>");
  EXPECT_THAT(second, Not(HasSubstr("\"changed\"")));
}

TEST(ComparisonReport, ShowsTheValuesOfNumbersThatHaveTheSameText) {
  const CExample before("usb4-dock.xml");
  CExample after("usb4-dock.xml");
  after.Set(Router(0), "USB4_TBT3_VID", "1", "E81B");
  const std::string routers = Section(PageOfTwo(before, after), "routers");
  EXPECT_THAT(routers, AllOf(HasSubstr("59419 \u00b7 E81B"), HasSubstr("1 \u00b7 E81B")));
}

TEST(ComparisonReport, MarksWhatDiffersInWords) {
  const CExample before("gan-charger-65w.txt");
  CExample after("gan-charger-65w.txt");
  after.Set(SrcPdo(1, 2), "Src_PDO_Max_Current", "250").Set(Component(1), "PD_Power_As_Source", "60000");
  const std::string page = PageOfTwo(before, after);
  const std::string mark = " <span class=\"mark\">changed</span>";
  EXPECT_THAT(page, HasSubstr("PD power as source" + mark));
  EXPECT_THAT(page, HasSubstr(">2</a>" + mark));
  EXPECT_THAT(AllMatches(Section(page, "fields"), mark + "</th>"), SizeIs(2));
}

TEST(ComparisonReport, ToleratesFindingsOfFieldsThatAreNotThere) {
  const CExample charger("gan-charger-65w.txt");
  const std::vector<Finding> findings = {{Severity::Error, "pdo-limits", 1, 0, "", "of no field", 100'000}};
  const std::string page = PageOfTwo(charger, charger, findings, {});
  EXPECT_THAT(page, HasSubstr("</span> of no field<span"));
}

TEST(ComparisonReport, SaysWhichNumberAPortHadBefore) {
  CExample before("two-port-laptop.xml");
  CExample after("two-port-laptop.xml");
  after.RemoveGroup(Component(1));
  const std::string page = PageOfTwo(before, after);
  EXPECT_THAT(page, HasSubstr("<h2>Component 1 (only in before.txt) \u00b7 Left</h2>"));
  EXPECT_THAT(page, HasSubstr("<h2>Component 2 \u00b7 Right</h2>"));
}

TEST(ComparisonReport, TextsFromTheFilesAreText) {
  const std::string hostile = "<script>alert(1)</script>\"><img src=x onerror=alert(1)>";
  CExample before("gan-charger-65w.txt");
  CExample after("gan-charger-65w.txt");
  before.Add(Component(1), hostile, hostile);
  after.Set(SrcPdo(1, 2), "Src_PDO_Voltage", "240", hostile);
  const std::vector<CVIFField> first = FieldsOf(before);
  const std::vector<CVIFField> second = FieldsOf(after);
  const std::string page = MakeReport({hostile, first, {}}, {hostile, second, {}});
  EXPECT_THAT(AllMatches(page, "<script"), SizeIs(1));
  EXPECT_THAT(page, Not(HasSubstr("<img")));
}

}  // namespace

}  // namespace vifanalysis::reporttest
