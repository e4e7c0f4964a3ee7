// The C interface gives what the C++ library gives.
#include "Handles.h"
#include "content/SampleContents.h"

#include <BaseUtilities/Exceptions.h>
#include <BaseUtilities/SystemText.h>
#include <VIFContent.h>
#include <VIFInvalidFile.h>
#include <VendorInfoFile.h>
#include <analysis/Check.h>
#include <analysis/Differences.h>
#include <analysis/Text.h>
#include <gtest/gtest.h>
#include <msxml/ComPointer.h>
#include <support/FieldText.h>

#include <optional>
#include <string>
#include <vector>

namespace {

using namespace testsupport;
using Lines = std::vector<std::string>;

/// Valid UTF-8 without NULs.
std::string ValidUtf8(const std::string& text) {
  const std::string valid = vifanalysis::ValidUtf8(text);
  std::string result;
  for (const char c : valid) result += c != '\0' ? std::string(1, c) : "\xEF\xBF\xBD";
  return result;
}

Lines Utf8Of(Lines lines) {
  for (std::string& line : lines) line = ValidUtf8(line);
  return lines;
}

Lines ReasonsOf(const CVIFInvalidFile& error) {
  Lines lines = {error.what()};
  for (const DOMDocProblem& reason : error.Problems()) {
    lines.push_back(std::to_string(reason.line) + ":" + std::to_string(reason.column) + reason.element + reason.reason);
  }
  return Utf8Of(lines);
}

Lines ReasonsOf(const vif_error* error) {
  Lines lines = {vif_error_message(error)};
  for (std::size_t i = 0; i < vif_error_reason_count(error); ++i) {
    auto reason = Sized<vif_reason>();
    EXPECT_EQ(vif_error_reason(error, i, &reason), VIF_OK);
    lines.push_back(std::to_string(reason.line) + ":" + std::to_string(reason.column) + reason.element + reason.text);
  }
  return lines;
}

/// Loads by both interfaces and compares.
/// \return the C++ object; nothing when both refuse the content
std::optional<CVendorInfoFile> LoadBoth(const SampleContent& content, vif_file* file) {
  CError error;
  const vif_status status = LoadBytes(file, content.bytes, content.name.c_str(), error.Receive());
  try {
    CVendorInfoFile vif;
    AppendVifContent(vif, content.bytes, content.name);
    EXPECT_EQ(status, VIF_OK) << error.Message();
    EXPECT_EQ(CFieldTexts(file), Utf8Of(FieldTexts(vif.Fields())));
    EXPECT_EQ(vif_file_component_count(file), vif.ComponentCount());
    return vif;
  } catch (const CVIFInvalidFile& failure) {
    EXPECT_EQ(status, VIF_ERROR_INVALID);
    EXPECT_EQ(ReasonsOf(error.Get()), ReasonsOf(failure));
  } catch (const CZoException& failure) {
    EXPECT_EQ(status, VIF_ERROR_SCHEMA);
    EXPECT_EQ(error.Message(), ValidUtf8(failure.what()));
  }
  return std::nullopt;
}

std::string TextOf(const vif_finding& finding) {
  return std::to_string(finding.severity) + finding.code + std::to_string(finding.line) + ":" +
         std::to_string(finding.column) + finding.element + finding.message + std::to_string(finding.position);
}

void CheckBoth(const SampleContent& content) {
  auto options = Sized<vif_check_options>();
  options.notes = 1;
  const FindingsPointer findings = Check(content.bytes, content.name.c_str(), &options);
  Lines expected;
  for (const vifanalysis::Finding& f : vifanalysis::CheckContent(content.bytes, content.name, {true})) {
    expected.push_back(std::to_string(static_cast<int>(f.severity)) + f.code + std::to_string(f.line) + ":" +
                       std::to_string(f.column) + ValidUtf8(f.element) + ValidUtf8(f.message) +
                       std::to_string(f.position));
  }
  Lines found;
  for (std::size_t i = 0; i < vif_findings_count(findings.get()); ++i) {
    found.push_back(TextOf(FindingAt(findings.get(), i)));
  }
  EXPECT_EQ(found, expected);
}

std::string TextOf(const std::optional<vifanalysis::DeclaredField>& field) {
  if (!field) return "|nothing";
  return ValidUtf8("|" + field->name + "|" + field->value + "|" + field->description + "|" + field->text + "|" +
                   field->meaning + "|" + (field->number ? std::to_string(*field->number) : "-") + "|" +
                   std::to_string(field->position) + (field->isUncertain ? "?" : ""));
}

std::string TextOf(const vif_declared_field& field) {
  if (field.position == VIF_NO_POSITION) return "|nothing";
  return std::string("|") + field.name + "|" + field.value + "|" + field.description + "|" + field.text + "|" +
         field.meaning + "|" + (field.number != VIF_NO_NUMBER ? std::to_string(field.number) : "-") + "|" +
         std::to_string(field.position) + (field.meaning_is_uncertain != 0 ? "?" : "");
}

void CompareBoth(const CVendorInfoFile& before, const CVendorInfoFile& after, const vif_file* first,
                 const vif_file* second) {
  const vifanalysis::Differences expected = vifanalysis::Compare(before.Fields(), after.Fields());
  vif_differences* differences = nullptr;
  ASSERT_EQ(vif_compare(first, second, nullptr, nullptr, &differences, nullptr), VIF_OK);
  const DifferencesPointer owner(differences);
  ASSERT_EQ(vif_differences_count(differences), expected.fields.size());
  for (std::size_t i = 0; i < expected.fields.size(); ++i) {
    auto difference = Sized<vif_difference>();
    ASSERT_EQ(vif_differences_get(differences, i, &difference), VIF_OK);
    EXPECT_EQ(difference.name, ValidUtf8(expected.fields[i].name));
    EXPECT_EQ(difference.group, expected.fields[i].group);
    EXPECT_EQ(TextOf(difference.before), TextOf(expected.fields[i].before));
    EXPECT_EQ(TextOf(difference.after), TextOf(expected.fields[i].after));
  }
  ASSERT_EQ(vif_differences_group_count(differences), expected.groups.size());
  for (std::size_t i = 0; i < expected.groups.size(); ++i) {
    auto change = Sized<vif_group_change>();
    ASSERT_EQ(vif_differences_group(differences, i, &change), VIF_OK);
    EXPECT_EQ(change.summary, ValidUtf8(expected.groups[i].summary));
    EXPECT_EQ(change.field_count, expected.groups[i].fieldCount);
  }
}

/// Compares everything for each content, and each content with the one before.
void ExpectSame(const std::vector<SampleContent>& contents) {
  const CUtf8Text asInTheCInterface;
  std::optional<CVendorInfoFile> last = CVendorInfoFile();
  FilePointer lastFile = MakeFile();
  for (const SampleContent& content : contents) {
    SCOPED_TRACE(content.name);
    FilePointer file = MakeFile();
    std::optional<CVendorInfoFile> vif = LoadBoth(content, file.get());
    CheckBoth(content);
    if (!vif) continue;
    CompareBoth(*last, *vif, lastFile.get(), file.get());
    last = std::move(vif);
    lastFile = std::move(file);
  }
}

TEST(CppDifferentialTest, FilesOfTheSources) { ExpectSame(ContentsInSources()); }

TEST(CppDifferentialTest, OddFiles) { ExpectSame(OddContents()); }

TEST(CppDifferentialTest, GeneratedFiles) { ExpectSame(GeneratedContents(40)); }

}  // namespace
