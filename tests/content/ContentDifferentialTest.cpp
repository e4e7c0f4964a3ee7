// Whatever bytes are read from memory or from a file, the result is the same.
#include "BaseUtilities/Exceptions.h"
#include "BaseUtilities/StringConvert.h"
#include "SampleContents.h"
#include "VIFContent.h"
#include "VIFInvalidFile.h"
#include "VendorInfoFile.h"
#include "msxml/ComPointer.h"
#include "support/AppendFile.h"
#include "support/FieldText.h"
#include "support/Random.h"
#include "support/TempDir.h"

#include <analysis/Check.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;
using testsupport::SampleContent;

Lines LinesOf(const CVIFInvalidFile& error) {
  Lines lines = {std::string("not valid: ") + error.what()};
  for (const DOMDocProblem& problem : error.Problems()) {
    lines.push_back(std::to_string(problem.line) + ":" + std::to_string(problem.column) + " " + problem.element + " " +
                    problem.reason);
  }
  return lines;
}

/// What a call adds to a list before it ends, and how it ends.
template <typename Call>
Lines Outcome(const Call& call) {
  Lines lines;
  const auto end = [&](const char* type, const std::exception& error) {
    lines.push_back(std::string(type) + ": " + error.what());
  };
  try {
    call(lines);
  } catch (const CVIFInvalidFile& error) {
    const Lines problems = LinesOf(error);
    lines.insert(lines.end(), problems.begin(), problems.end());
  } catch (const CZoRunTimeException& error) {
    end("run-time error", error);
  } catch (const CZoDOMDocException& error) {
    end("document error", error);
  } catch (const vifanalysis::CCheckError& error) {
    end("check error", error);
  } catch (const _com_error& error) {
    lines.push_back("COM error " + std::to_string(error.Error()));
  }
  return lines;
}

/// Loads into an object that holds something, so that what stays after a failure can be seen.
template <typename Load>
Lines Loaded(const Load& load) {
  CVendorInfoFile vif({CVIFField(false, "Before", "all", CVIFField().Indexes())});
  Lines lines = Outcome([&](Lines&) { load(vif); });
  const Lines fields = testsupport::FieldTexts(vif.Fields());
  lines.insert(lines.end(), fields.begin(), fields.end());
  lines.push_back(std::to_string(vif.ComponentCount()));
  lines.push_back(Utf16ToUtf8(vif.FileName()));
  return lines;
}

std::string TextOf(const vifanalysis::Finding& finding) {
  return std::string(SeverityName(finding.severity)) + " " + finding.code + " " + std::to_string(finding.line) + ":" +
         std::to_string(finding.column) + " " + finding.element + " " + finding.message + " " +
         std::to_string(finding.position);
}

Lines TextsOf(const std::vector<vifanalysis::Finding>& findings) {
  Lines lines;
  for (const vifanalysis::Finding& finding : findings) lines.push_back(TextOf(finding));
  return lines;
}

VifLineObserver AddLines(Lines& lines) {
  return [&](const VifLineReport& report) {
    lines.push_back(std::to_string(report.line) + " " + std::to_string(report.problem) + " " +
                    std::string(report.text) + "|" + std::string(report.content));
  };
}

VifFieldObserver AddFields(Lines& lines) {
  return [&](std::size_t line, const CVIFField& field) {
    lines.push_back(std::to_string(line) + " " + testsupport::FieldText(field));
  };
}

VifElementObserver AddElements(Lines& lines) {
  return [&](const VifElementReport& report) {
    lines.push_back(std::to_string(report.fate) + " " + std::to_string(report.line) + ":" +
                    std::to_string(report.column) + " " + report.path + " " +
                    (report.field != nullptr ? testsupport::FieldText(*report.field) : ""));
  };
}

class ContentDifferentialTest : public testing::Test {
 protected:
  /// Expects every way of reading to have the same result from memory as from a file.
  void ExpectSame(const SampleContent& content) const {
    SCOPED_TRACE(content.name);
    const std::filesystem::path path = m_dir.Write(content.name, content.bytes);
    const std::string& bytes = content.bytes;
    const vifanalysis::CheckOptions options = {true};
    const Lines loaded = Loaded([&](CVendorInfoFile& vif) { testsupport::AppendFile(vif, path); });
    const Lines checked = Outcome([&](Lines& lines) { lines = TextsOf(vifanalysis::CheckFile(path, options)); });
    const Lines text = Outcome([&](Lines& l) { CheckTextVif(path, AddLines(l), nullptr, AddFields(l)); });
    const Lines xml = Outcome([&](Lines& lines) { CheckXmlVif(path, AddElements(lines)); });
    std::filesystem::remove(path);  // nothing may read it any more
    EXPECT_EQ(Loaded([&](CVendorInfoFile& vif) { AppendVifContent(vif, bytes, path); }), loaded);
    EXPECT_EQ(Outcome([&](Lines& lines) { lines = TextsOf(vifanalysis::CheckContent(bytes, path, options)); }),
              checked);
    EXPECT_EQ(Outcome([&](Lines& l) { CheckTextVifContent(bytes, path, AddLines(l), nullptr, AddFields(l)); }), text);
    EXPECT_EQ(Outcome([&](Lines& lines) { CheckXmlVifContent(bytes, path, AddElements(lines)); }), xml);
  }

 private:
  testsupport::TempDir m_dir;
};

TEST_F(ContentDifferentialTest, FilesOfTheSources) {
  const std::vector<SampleContent> contents = testsupport::ContentsInSources();
  ASSERT_GE(contents.size(), 12U);
  for (const SampleContent& content : contents) ExpectSame(content);
}

TEST_F(ContentDifferentialTest, OddFiles) {
  for (const SampleContent& content : testsupport::OddContents()) ExpectSame(content);
}

TEST_F(ContentDifferentialTest, GeneratedFiles) {
  SCOPED_TRACE(testsupport::SeedMessage());
  for (const SampleContent& content : testsupport::GeneratedContents(100)) ExpectSame(content);
}

}  // namespace
