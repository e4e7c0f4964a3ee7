// Asks a few fields with a pattern and slots, field by field and all at once, and holds the answers against what the
// pattern says as a plain regular expression.
//
// The first line is the pattern, the second the query's slots, and each further one a field: SLOTS|NAME.
#include "BaseUtilities/Exceptions.h"
#include "BaseUtilities/StringConvert.h"
#include "Checks.h"
#include "GuardedRegex.h"
#include "Input.h"
#include "VendorInfoFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

using fuzz::Require;
using fuzz::Slots;
using Fields = std::vector<CVIFField>;

constexpr Slots kNowhere = {CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX};
constexpr std::size_t kMostFields = 4;
constexpr std::size_t kLongestName = 32;

/// What takes more steps to match is passed over: some expressions take time that doubles with every character of a
/// name, and nothing else would be tried beside them.
constexpr std::size_t kMostSteps = 20'000;

struct Query {
  std::string pattern;
  Slots slots;
};

/// What the function returns; nothing when the pattern is no regular expression or is too much for the matcher.
template <typename Function>
auto AnswerOf(const Function& ask) -> std::optional<decltype(ask())> {
  try {
    return ask();
  } catch (const std::regex_error&) {
    return std::nullopt;
  }
}

bool PassesSlot(const CVIFField& field, const VifIndex& asked) {
  const auto& [location, number] = asked;
  if (location == eVifLocUnset) return true;
  for (const auto& [fieldLocation, fieldNumber] : field.Indexes()) {
    if (fieldLocation == location) return number == CVIFField::INDEX_NOT_SPECIFIED || number == fieldNumber;
  }
  return false;
}

bool PassesSlots(const CVIFField& field, const Slots& asked) {
  return std::all_of(asked.begin(), asked.end(), [&](const VifIndex& slot) { return PassesSlot(field, slot); });
}

/// A pattern as the plain regular expression that it is.
class CPlainExpression {
 public:
  explicit CPlainExpression(const std::string& pattern) : m_pattern(pattern) {}

  bool Fits(const char* name) {
    if (m_pattern.empty()) return true;
    if (!m_expression) m_expression.emplace(m_pattern, std::regex_constants::ECMAScript | std::regex_constants::icase);
    vif::GuardedMatch<char> match;
    return vif::GuardedRegexMatch(std::string_view(name), match, *m_expression, {vif::LowestFrame(), kMostSteps});
  }

 private:
  const std::string& m_pattern;
  std::optional<std::regex> m_expression;
};

/// Whether the pattern is a regular expression, but one that takes too many steps on a name.
bool IsTooMuch(const Fields& fields, CPlainExpression& expression, const Query& query) {
  const bool isExpression = AnswerOf([&] { return CVIFField().Match(query.pattern.c_str(), kNowhere); }).has_value();
  return isExpression && std::any_of(fields.begin(), fields.end(), [&](const CVIFField& field) {
           return !AnswerOf([&] { return expression.Fits(field.Name()); });
         });
}

/// The fields that pass one by one; nothing when one of them cannot be asked.
std::optional<Fields> PassingFields(const Fields& fields, CPlainExpression& expression, const Query& query) {
  Fields passing;
  for (const CVIFField& field : fields) {
    const auto answer = AnswerOf([&] { return field.Match(query.pattern.c_str(), query.slots); });
    if (!answer) return std::nullopt;
    const bool isExpected = PassesSlots(field, query.slots) && expression.Fits(field.Name());
    Require(*answer == isExpected, "Match says what the regular expression says");
    if (*answer) passing.push_back(field);
  }
  return passing;
}

/// The field that the query finds; nothing when there is not exactly one.
std::optional<CVIFField> FoundField(const std::function<CVIFField()>& find) {
  try {
    return find();
  } catch (const CZoRunTimeException&) {
    return std::nullopt;
  }
}

/// The queries of one kind of text. The pattern lives as long as the call.
template <typename Char>
void CheckQueries(const CVendorInfoFile& vif, const Char* pattern, const Slots& slots, const Fields& passing) {
  fuzz::RequireSame(vif.Count(pattern, slots), passing.size(), "Count counts what Match lets pass");
  Require(fuzz::AreSame(*vif.GetFields(pattern, slots), passing), "GetFields gives what Match lets pass");
  const auto unique = FoundField([&] { return vif.GetUniqueField(pattern, slots); });
  Require(unique.has_value() == (passing.size() == 1), "GetUniqueField takes one field only");
  Require(!unique || fuzz::AreSame(*unique, passing.front()), "GetUniqueField gives the one field");
  const auto single = FoundField([&] {
    const auto [field, isFound] = vif.GetSingleField(pattern, slots[0], slots[1], slots[2]);
    Require(isFound == (passing.size() == 1), "GetSingleField says whether there is one");
    return field;
  });
  Require(single.has_value() == (passing.size() < 2), "GetSingleField takes none or one field");
  Require(!single || fuzz::AreSame(*single, passing.empty() ? CVIFField() : passing.front()),
          "GetSingleField gives the one field, or the empty one");
}

Fields FieldsIn(std::string_view text) {
  Fields fields;
  while (!text.empty() && fields.size() < kMostFields) {
    std::string_view name = fuzz::TakeUpTo('\n', text);
    const bool hasSlots = name.find('|') != std::string_view::npos;
    const Slots slots = fuzz::SlotsIn(hasSlots ? fuzz::TakeUpTo('|', name) : std::string_view());
    fields.emplace_back(true, std::string(name.substr(0, kLongestName)), std::to_string(fields.size()), slots);
  }
  return fields;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(data, data + size);
  std::string_view rest = input;
  Query query;
  query.pattern = fuzz::TakeUpTo('\n', rest);
  query.pattern.resize(std::min(query.pattern.size(), query.pattern.find('\0')));
  query.slots = fuzz::SlotsIn(fuzz::TakeUpTo('\n', rest));
  const Fields fields = FieldsIn(rest);
  CPlainExpression expression(query.pattern);
  if (IsTooMuch(fields, expression, query)) return 0;
  const std::optional<Fields> passing = PassingFields(fields, expression, query);
  const CVendorInfoFile vif(fields);
  const auto count = AnswerOf([&] { return vif.Count(query.pattern.c_str(), query.slots); });
  Require(count.has_value() == passing.has_value(), "a query fails where Match fails on one of its fields");
  if (!passing) return 0;
  const bool isWide =
      query.pattern.size() % 2 == 1 && fuzz::IsUtf8(query.pattern);  // as either will do, and takes time
  if (isWide) {
    CheckQueries(vif, Utf8ToUtf16(query.pattern).c_str(), query.slots, *passing);
  } else {
    CheckQueries(vif, query.pattern.c_str(), query.slots, *passing);
  }
  return 0;
}
