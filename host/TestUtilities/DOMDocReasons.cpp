#include "TestUtilities/DOMDocReasons.h"

#include "BaseUtilities/Exceptions.h"
#include "BaseUtilities/SimpleBuffer.h"
#include "BaseUtilities/StringConvert.h"

namespace {

/// A path names each element for people to read, and the same file could repeat a long name in every path.
constexpr std::size_t kLongestName = 100;

}  // namespace

std::string WrongRootReason(std::string_view name, std::string_view namespaceUri, std::string_view wantedName,
                            const std::string* wantedNamespace) {
  std::string reason = "The root element is '";
  reason.append(name).append("' in ");
  if (namespaceUri.empty()) {
    reason += "no namespace";
  } else {
    reason.append("the namespace '").append(namespaceUri).append("'");
  }
  reason.append(", not '").append(wantedName).append("'");
  if (wantedNamespace != nullptr) reason.append(" in the namespace '").append(*wantedNamespace).append("'");
  return reason.append(".");
}

std::string PathStep(std::string_view name, std::size_t number) {
  std::string step = Utf16ToUtf8(Utf8ToUtf16(name.substr(0, kLongestName)));
  if (name.size() > kLongestName) step += "...";
  if (number != 0) step.append("[").append(std::to_string(number)).append("]");
  return step;
}

void ThrowSchemaError(const std::string& what) {
  CSimpleBuffer message;
  throw CZoDOMDocException(message.Printf("Couldn't load the schema %s", what));
}

void ThrowSchemaError(const std::string& file, const DOMDocProblem& problem) {
  const std::string line = problem.line != 0 ? ": line " + std::to_string(problem.line) : std::string();
  ThrowSchemaError(file + line + ": " + problem.reason);
}

void RequireNamespace(const std::string& file, const std::string& described, const std::string& wanted) {
  if (described == wanted) return;
  ThrowSchemaError(file + ": it describes the namespace '" + described + "', not '" + wanted + "'");
}
