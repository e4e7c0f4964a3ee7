// JSON and CSV through the C interface, and the lines of files.
#include "Handles.h"

#include <VIFContent.h>
#include <VendorInfoFile.h>
#include <analysis/Check.h>
#include <analysis/SourceLine.h>
#include <analysis/Writers.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace testsupport;

constexpr const char* kText = "PID: 1 ; \"a\",\xFF\nno declaration\nSrc_PDO_Voltage1: 100\n$Vendor_Name: \"a\\b\"\n";
constexpr const char* kOther = "PID: 2\nSrc_PDO_Voltage1: 100\nSrc_PDO_Voltage2: 180\n";

std::string Taken(vif_text* text) {
  const TextPointer owned(text);
  return {vif_text_data(text), vif_text_size(text)};
}

/// What `call` gives when it succeeds.
template <typename Call>
std::string Given(const Call& call) {
  vif_text* text = nullptr;
  CError error;
  EXPECT_EQ(call(&text, error.Receive()), VIF_OK) << error.Message();
  return Taken(text);
}

/// What `write` passes to its sink.
template <typename Write>
std::string Written(const Write& write) {
  std::string text;
  write([&](std::string_view part) { text += part; });
  return text;
}

CVendorInfoFile InCpp(const char* text) {
  CVendorInfoFile vif;
  AppendVifContent(vif, text, "a.txt");
  return vif;
}

TEST(CDocumentsTest, FieldsAreThoseOfTheAnalysis) {
  const FilePointer file = FileOf(kText);
  const CVendorInfoFile vif = InCpp(kText);
  const std::vector<const char*> names = {"a.txt", "\xFF.txt"};
  EXPECT_EQ(Given([&](vif_text** text, vif_error** error) {
              return vif_file_json(file.get(), names.data(), names.size(), text, error);
            }),
            Written([&](const vifanalysis::TextSink& sink) {
              vifanalysis::WriteFieldsAsJson(std::vector<std::string>{"a.txt", "\xFF.txt"}, vif.ComponentCount(),
                                             vif.Fields(), sink);
            }));
  EXPECT_EQ(Given([&](vif_text** text, vif_error** error) { return vif_file_csv(file.get(), text, error); }),
            Written([&](const vifanalysis::TextSink& sink) { vifanalysis::WriteFieldsAsCsv(vif.Fields(), sink); }));
}

TEST(CDocumentsTest, AFileWithoutFieldsHasNone) {
  const FilePointer file = MakeFile();
  EXPECT_EQ(
      Given([&](vif_text** text, vif_error** error) { return vif_file_json(file.get(), nullptr, 0, text, error); }),
      "{\"files\":[],\n\"componentCount\":0,\n\"fields\":[\n]}\n");
}

TEST(CDocumentsTest, FindingsAreThoseOfTheAnalysis) {
  const FindingsPointer findings = Check(kText, "a.txt");
  const std::vector<vifanalysis::FileFindings> expected = {{"a.txt", vifanalysis::CheckContent(kText, "a.txt")}};
  ASSERT_FALSE(expected.front().findings.empty());
  EXPECT_EQ(Given([&](vif_text** text, vif_error** error) {
              return vif_findings_json(findings.get(), "a.txt", text, error);
            }),
            Written([&](const vifanalysis::TextSink& sink) { vifanalysis::WriteFindingsAsJson(expected, sink); }));
}

TEST(CDocumentsTest, DifferencesAreThoseOfTheAnalysis) {
  const FilePointer before = FileOf(kOther);
  const FilePointer after = FileOf("PID: 3\nno declaration\n");
  const FindingsPointer first = Check(kOther, "a.txt");
  const FindingsPointer second = Check("PID: 3\nno declaration\n", "a.txt");
  vif_differences* differences = nullptr;
  ASSERT_EQ(vif_compare(before.get(), after.get(), nullptr, nullptr, &differences, nullptr), VIF_OK);
  const DifferencesPointer owned(differences);
  vif_findings* fixed = nullptr;
  vif_findings* added = nullptr;
  ASSERT_EQ(vif_compare_findings(first.get(), second.get(), differences, &fixed, &added, nullptr), VIF_OK);
  const FindingsPointer ownedFixed(fixed);
  const FindingsPointer ownedAdded(added);

  vifanalysis::FileComparison expected = {"a.txt", "b.txt", {}, {}};
  expected.differences = vifanalysis::Compare(InCpp(kOther).Fields(), InCpp("PID: 3\nno declaration\n").Fields());
  const auto give = [&](const vif_findings* one, const vif_findings* other) {
    return Given([&](vif_text** text, vif_error** error) {
      return vif_differences_json(differences, "a.txt", "b.txt", one, other, text, error);
    });
  };
  const auto write = [&] {
    return Written([&](const vifanalysis::TextSink& sink) { vifanalysis::WriteComparisonAsJson(expected, sink); });
  };
  EXPECT_EQ(give(nullptr, nullptr), write());
  expected.findings = vifanalysis::CompareFindings(vifanalysis::CheckContent(kOther, "a.txt"),
                                                   vifanalysis::CheckContent("PID: 3\nno declaration\n", "a.txt"),
                                                   expected.differences);
  ASSERT_FALSE(expected.findings.added.empty());
  EXPECT_EQ(give(fixed, added), write());
}

TEST(CDocumentsTest, NullIsAnArgumentThatFails) {
  const FilePointer file = FileOf(kText);
  const FindingsPointer findings = Check(kText, "a.txt");
  vif_text* text = nullptr;
  const char* missing = nullptr;
  EXPECT_EQ(vif_file_json(nullptr, nullptr, 0, &text, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_json(file.get(), nullptr, 1, &text, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_json(file.get(), &missing, 1, &text, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_json(file.get(), nullptr, 0, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_csv(nullptr, &text, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_findings_json(nullptr, "a.txt", &text, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_findings_json(findings.get(), nullptr, &text, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_differences_json(nullptr, "a", "b", nullptr, nullptr, &text, nullptr), VIF_ERROR_ARGUMENT);
  vif_differences* differences = nullptr;
  ASSERT_EQ(vif_compare(file.get(), file.get(), nullptr, nullptr, &differences, nullptr), VIF_OK);
  const DifferencesPointer owned(differences);
  EXPECT_EQ(vif_differences_json(differences, nullptr, "b", nullptr, nullptr, &text, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_differences_json(differences, "a", nullptr, nullptr, nullptr, &text, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_differences_json(differences, "a", "b", nullptr, nullptr, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_findings_json(findings.get(), "a.txt", nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_csv(file.get(), nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(text, nullptr);
}

/// Both parts of a line, with a bar where the place is.
std::string Line(std::string_view content, std::uint64_t line, std::uint64_t column) {
  vif_text* before = nullptr;
  vif_text* after = nullptr;
  EXPECT_EQ(vif_source_line(content.data(), content.size(), line, column, &before, &after, nullptr), VIF_OK);
  const std::string first = Taken(before);
  return first + '|' + Taken(after);
}

TEST(CSourceLineTest, IsCutAtTheColumn) {
  EXPECT_EQ(Line("one\ntwo\r\nthree", 2, 2), "t|wo");
  EXPECT_EQ(Line("one\ntwo\r\nthree", 3, 1), "|three");
  EXPECT_EQ(Line("one\ntwo", 1, 4), "one|");
}

TEST(CSourceLineTest, WithoutAColumnIsAfterThePlace) { EXPECT_EQ(Line("one\ntwo", 2, 0), "|two"); }

TEST(CSourceLineTest, IsEmptyBeyondTheEnd) {
  EXPECT_EQ(Line("one", 0, 1), "|");
  EXPECT_EQ(Line("one", 2, 1), "|");
  EXPECT_EQ(Line("one", UINT64_MAX, UINT64_MAX), "|");
  EXPECT_EQ(Line("one", 1, UINT64_MAX), "one|");
  EXPECT_EQ(Line({}, 1, 1), "|");
}

TEST(CSourceLineTest, CountsCharacters) {
  EXPECT_EQ(Line("\xEF\xBB\xBF\xC3\xA4\xE2\x82\xAC!", 1, 3), "\xC3\xA4\xE2\x82\xAC|!");
  EXPECT_EQ(Line("\xE4!", 1, 2), "\xEF\xBF\xBD|!");
  // One that takes two units of UTF-16.
  EXPECT_EQ(Line("\xF0\x9F\x94\x8C!", 1, 2), "\xF0\x9F\x94\x8C|!");
}

TEST(CSourceLineTest, DecodesUtf16) {
  using namespace std::string_view_literals;
  EXPECT_EQ(Line("\xFF\xFE"
                 "a\0\n\0\xE4\0b\0"sv,
                 2, 2),
            "\xC3\xA4|b");
  EXPECT_EQ(Line("\xFE\xFF\0a\0\n\0\xE4\0b"sv, 2, 2), "\xC3\xA4|b");
  EXPECT_EQ(Line("\xFF\xFE\x3D\xD8\x0C\xDD!\0"sv, 1, 2), "\xF0\x9F\x94\x8C|!");
  EXPECT_EQ(Line("\xFF\xFE\x3D\xD8!\0"sv, 1, 2), "\xEF\xBF\xBD|!");
  EXPECT_EQ(Line("\xFF\xFE"
                 "a"sv,
                 1, 1),
            "|");
}

TEST(CSourceLineTest, IsPrintable) { EXPECT_EQ(Line("\ta\x1B[31m", 1, 2), " |a\\x1b[31m"); }

TEST(CSourceLineTest, LeavesOutWhatIsFarFromThePlace) {
  const std::string line(1000, 'x');
  EXPECT_EQ(Line(line, 1, 500), "\u2026" + std::string(80, 'x') + '|' + std::string(120, 'x') + "\u2026");
  EXPECT_EQ(Line(line, 1, 5000), "\u2026" + std::string(80, 'x') + '|');
  EXPECT_EQ(Line(line.substr(0, 201), 1, 81), std::string(80, 'x') + '|' + std::string(120, 'x') + "\u2026");
  EXPECT_EQ(Line(line.substr(0, 200), 1, 81), std::string(80, 'x') + '|' + std::string(120, 'x'));
}

TEST(CSourceLineTest, NeedsPlacesForBothTexts) {
  vif_text* text = nullptr;
  EXPECT_EQ(vif_source_line("a", 1, 1, 1, nullptr, &text, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_source_line("a", 1, 1, 1, &text, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_source_line(nullptr, 1, 1, 1, &text, &text, nullptr), VIF_ERROR_ARGUMENT);
}

}  // namespace
