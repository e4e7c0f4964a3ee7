#include "FileReaders.h"
#include "KnownNames.h"
#include "Sentence.h"

#include <BaseUtilities/Exceptions.h>
#include <VIFContent.h>
#include <VIFInvalidFile.h>
#include <VIFXmlCheck.h>
#include <analysis/Check.h>
#include <analysis/Files.h>
#include <analysis/Text.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

namespace vifanalysis {

namespace {

std::string_view WhyNoField(EVifElementFate fate) {
  switch (fate) {
    case eVifElementNotRead: return "it is not read here, and neither is its content";
    case eVifElementGivesWay: return "the description next to it is read instead";
    case eVifElementForeign: return "it is not in the namespace of the VIF's elements; its content is lost, too";
    default: return "it is empty";
  }
}

Finding DescribeSkipped(const VifElementReport& report) {
  const RuleInfo& code = report.fate == eVifElementForeign ? code::kForeign : code::kNoField;
  return FindingAt(code, report.line, report.column, report.path,
                   Quoted(report.path) + " yields no field: " + std::string(WhyNoField(report.fate)));
}

Finding DescribeProblem(const DOMDocProblem& problem) {
  // The reason may quote only the local part of a qualified name.
  const std::string localName = problem.element.substr(problem.element.find(':') + 1);
  const bool isNamed = problem.reason.find(localName) != std::string::npos;
  return FindingAt(code::kNotValid, problem.line, problem.column, problem.element,
                   (isNamed ? "" : Quoted(problem.element) + ": ") + Printable(problem.reason));
}

/// The list elements of an XML file. One without items is read as a field of that name.
constexpr std::string_view kListNames[] = {"USB4RouterList", "PCIeEndpointList", "SrcPdoList",    "SnkPdoList",
                                           "SOPSVIDList",    "SOPSVIDModeList",  "CableSVIDList", "CableSVIDModeList"};

bool IsEmptyList(const CVIFField& field) {
  return std::find(std::begin(kListNames), std::end(kListNames), field.Name()) != std::end(kListNames);
}

/// The application's description of itself is a field in no group, under a name without a definition.
bool IsApplicationDescription(const CVIFField& field) {
  return field.IndexCount() == 0 && std::string_view(field.Name()) == "Description";
}

bool IsUndefined(const CVIFField& field) {
  return FindDefined(field.Name()) == nullptr && !IsEmptyList(field) && !IsApplicationDescription(field);
}

Findings DescribeProblems(const std::vector<DOMDocProblem>& problems, const CheckedFile& file) {
  if (problems.empty()) throw CCheckError("the file is not valid, but the reason is not known");
  if (!file.content && IsReadFailure(file.name, problems)) throw CCheckError(problems.front().reason);
  Findings findings;
  for (const DOMDocProblem& problem : problems) findings.push_back(DescribeProblem(problem));
  return findings;
}

/// Follows the loading of one file.
class CFollower {
 public:
  FileContent Read(const CheckedFile& file) {
    const auto take = [this](const VifElementReport& report) { Take(report); };
    try {
      if (file.content) {
        CheckXmlVifContent(*file.content, file.name, take);
      } else {
        CheckXmlVif(file.name, take);
      }
    } catch (const CVIFInvalidFile& error) {
      return {{}, {}, DescribeProblems(error.Problems(), file), false};
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
      const std::size_t position = m_content.fields.size();
      m_content.fields.push_back({*report.field, report.line, report.column, report.path, position});
      if (IsUndefined(*report.field)) {
        m_content.undefinedNames.push_back({report.field->Name(), report.line, report.column, report.path, position});
      }
    } else if (report.fate == eVifElementNotUnderstood) {
      m_failure = FindingAt(code::kNotValid, report.line, report.column, report.path, {});
    } else {
      m_content.findings.push_back(DescribeSkipped(report));
    }
  }

  /// Loading failed, either at the group reported before or for a reason that is not in the file.
  void TakeFailure(const std::exception& error) {
    if (!m_failure) throw;
    m_failure->message = "loading fails at the group " + Quoted(m_failure->element) + ": " + Printable(error.what());
    m_content.findings.push_back(*m_failure);
    m_content.isComplete = false;
  }

  FileContent m_content;
  std::optional<Finding> m_failure;
};

}  // namespace

FileContent ReadXmlFile(const CheckedFile& file) { return CFollower().Read(file); }

}  // namespace vifanalysis
