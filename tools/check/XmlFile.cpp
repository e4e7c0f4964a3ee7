#include "CheckFile.h"
#include "Command.h"
#include "Sentence.h"
#include "Text.h"

#include <BaseUtilities/Exceptions.h>
#include <VIFInvalidFile.h>
#include <VIFXmlCheck.h>

#include <algorithm>
#include <string_view>

namespace tool {

namespace {

std::string WhyNoField(std::string_view path) {
  const std::string_view inRoot = path.substr(std::min(path.find('/'), path.size() - 1) + 1);
  if (inRoot == "Component" || inRoot.starts_with("Component[")) return "is a component with nothing in it";
  if (inRoot.find('/') == std::string_view::npos) return "is not one that is read directly under the root element";
  if (inRoot.starts_with("VIF_App")) return "gives way to the description beside it";
  return "is an item of a list with nothing in it";
}

Finding DescribePassedOver(const VifElementReport& report) {
  return {&code::kNoField, report.line, report.column, report.path,
          "the element '" + Printable(report.path) + "' yields no field: it " + WhyNoField(report.path)};
}

Finding DescribeProblem(const DOMDocProblem& problem) {
  // Of a qualified name, the reason may quote just the local part.
  const std::string localName = problem.element.substr(problem.element.find(':') + 1);
  const bool isNamed = problem.reason.find(localName) != std::string::npos;
  return {&code::kNotValid, problem.line, problem.column, problem.element,
          (isNamed ? "" : Quoted(problem.element) + ": ") + Printable(problem.reason)};
}

Findings DescribeProblems(const std::vector<DOMDocProblem>& problems) {
  // What concerns no place in the file is none of the file's doing: it cannot be opened, or a schema is missing.
  if (std::none_of(problems.begin(), problems.end(), [](const DOMDocProblem& problem) { return problem.line != 0; })) {
    throw Failure(problems.empty() ? "is not valid for a reason that is not known" : problems.front().reason);
  }
  Findings findings;
  for (const DOMDocProblem& problem : problems) findings.push_back(DescribeProblem(problem));
  return findings;
}

/// Whether loading fails because of the groups of a document that is valid, of which it says the reason but no place.
bool IsAboutGroups(std::string_view reason) {
  return reason.starts_with("Invalid node depth: ") || reason.starts_with("Unexpected list element name: ");
}

FileContent InvalidGroups(const std::exception& error) {
  if (!IsAboutGroups(error.what())) throw;
  return {{}, {{&code::kNotValid, 0, 0, {}, Printable(error.what())}}};
}

}  // namespace

FileContent ReadXmlFile(const std::filesystem::path& path) {
  FileContent content;
  try {
    CheckXmlVif(path, [&](const VifElementReport& report) {
      if (report.field != nullptr) {
        content.fields.push_back({*report.field, report.line, report.column, report.path});
      } else {
        content.findings.push_back(DescribePassedOver(report));
      }
    });
    return content;
  } catch (const CVIFInvalidFile& error) {
    return {{}, DescribeProblems(error.Problems())};
  } catch (const CZoRunTimeException& error) {
    return InvalidGroups(error);
  } catch (const CZoDOMDocException& error) {
    return InvalidGroups(error);
  }
}

}  // namespace tool
