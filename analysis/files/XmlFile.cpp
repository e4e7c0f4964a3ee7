#include "FileReaders.h"
#include "Sentence.h"

#include <BaseUtilities/Exceptions.h>
#include <VIFInvalidFile.h>
#include <VIFXmlCheck.h>
#include <analysis/Check.h>
#include <analysis/Files.h>
#include <analysis/Text.h>

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace vifanalysis {

namespace {

std::string_view WhyNoField(EVifElementFate fate) {
  switch (fate) {
    case eVifElementNotRead: return "it is not read where it stands, nor is anything in it";
    case eVifElementGivesWay: return "it gives way to the description beside it";
    case eVifElementForeign: return "it is in another namespace than the VIF's elements, as is anything in it";
    default: return "there is nothing in it";
  }
}

Finding DescribePassedOver(const VifElementReport& report) {
  const FindingCode& code = report.fate == eVifElementForeign ? code::kForeign : code::kNoField;
  return FindingAt(code, report.line, report.column, report.path,
                   Quoted(report.path) + " yields no field: " + std::string(WhyNoField(report.fate)));
}

Finding DescribeProblem(const DOMDocProblem& problem) {
  // Of a qualified name, the reason may quote just the local part.
  const std::string localName = problem.element.substr(problem.element.find(':') + 1);
  const bool isNamed = problem.reason.find(localName) != std::string::npos;
  return FindingAt(code::kNotValid, problem.line, problem.column, problem.element,
                   (isNamed ? "" : Quoted(problem.element) + ": ") + Printable(problem.reason));
}

bool CanBeRead(const std::filesystem::path& path) {
  try {
    return !FirstUnreadableLine(path);
  } catch (const CZoRunTimeException&) {
    return false;
  }
}

Findings DescribeProblems(const std::vector<DOMDocProblem>& problems, const std::filesystem::path& path) {
  if (problems.empty()) throw CCheckError("is not valid, and it is not known why");
  // A reason without a place may be none of the file's doing; MSXML has no places for the schema's reasons, though.
  const bool hasPlace =
      std::any_of(problems.begin(), problems.end(), [](const DOMDocProblem& problem) { return problem.line != 0; });
  if (!hasPlace && !CanBeRead(path)) throw CCheckError(problems.front().reason);
  Findings findings;
  for (const DOMDocProblem& problem : problems) findings.push_back(DescribeProblem(problem));
  return findings;
}

/// Follows the loading of one file.
class CFollower {
 public:
  FileContent Read(const std::filesystem::path& path) {
    try {
      CheckXmlVif(path, [this](const VifElementReport& report) { Take(report); });
    } catch (const CVIFInvalidFile& error) {
      return {{}, DescribeProblems(error.Problems(), path)};
    } catch (const CZoRunTimeException& error) {
      TakeFailure(error);
    } catch (const CZoDOMDocException& error) {
      TakeFailure(error);
    }
    return std::move(m_content);
  }

 private:
  void Take(const VifElementReport& report) {
    if (report.field != nullptr) {
      m_content.fields.push_back({*report.field, report.line, report.column, report.path});
    } else if (report.fate == eVifElementNotUnderstood) {
      m_failure = FindingAt(code::kNotValid, report.line, report.column, report.path, {});
    } else {
      m_content.findings.push_back(DescribePassedOver(report));
    }
  }

  /// Loading has failed: on a group of which it has told before, or for a reason that is none of the file's doing.
  void TakeFailure(const std::exception& error) {
    if (!m_failure) throw;
    m_failure->message = Quoted(m_failure->element) + " is a group that loading fails on: " + Printable(error.what());
    m_content.findings.push_back(*m_failure);
  }

  FileContent m_content;
  std::optional<Finding> m_failure;
};

}  // namespace

FileContent ReadXmlFile(const std::filesystem::path& path) { return CFollower().Read(path); }

}  // namespace vifanalysis
