#include "rules/FieldWords.h"

#include "files/Sentence.h"

#include <analysis/FieldText.h>
#include <analysis/Text.h>
#include <analysis/Vocabulary.h>

#include <algorithm>
#include <optional>
#include <vector>

namespace vifanalysis {

namespace {

bool IsLetterOrDigit(char c) { return IsDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

/// A name as part of a sentence. One from a file can be anything, and is quoted unless it looks like those of the
/// format.
std::string Readable(std::string_view name) {
  constexpr std::size_t longest = 60;
  constexpr std::string_view others = "_ ()'/";
  const bool isPlain =
      name.size() <= longest && (name.ends_with(')') || (!name.empty() && IsLetterOrDigit(name.back())));
  const bool isHarmless = std::all_of(
      name.begin(), name.end(), [&](char c) { return IsLetterOrDigit(c) || others.find(c) != std::string_view::npos; });
  return isPlain && isHarmless ? std::string(name) : Quoted(name);
}

}  // namespace

std::string NumberInWords(const CVifView& file, std::string_view name, std::uint64_t number) {
  const FieldInfo* info = FindField(name).field;
  if (info == nullptr) return std::to_string(number);
  const std::string_view text = ValueText(*info, number, file.GetEdition().value_or(Edition{}));
  if (!text.empty() && info->type == FieldType::Boolean) return std::string(text);
  if (!text.empty()) return std::to_string(number).append(" (").append(text).append(")");
  const std::optional<Quantity> quantity = QuantityOf(*info, number);
  return quantity ? QuantityText(*quantity) : std::to_string(number);
}

std::string ValueInWords(const FoundField& found, const CVifView& file) {
  return HasNumber(found.field) ? NumberInWords(file, found.field.Name(), found.field.GetULongNumericValue())
                                : Quoted(TextOf(found));
}

std::string FieldIs(const FoundField& found, const CVifView& file) {
  return std::string(found.field.Name()).append(" is ").append(ValueInWords(found, file));
}

std::string FieldIs(const CGroupView& group, std::string_view name, const CVifView& file) {
  const FoundField* found = group.Find(name);
  return std::string(name).append(" is ").append(found != nullptr ? ValueInWords(*found, file) : "missing");
}

std::string FieldIs(const CComponentView& component, std::string_view name) {
  return FieldIs(component, name, component.File());
}

std::string NameAndValue(const CComponentView& component, std::string_view name) {
  return std::string(name).append(" ").append(ValueInWords(*component.Find(name), component.File()));
}

void CMentions::AddField(const CGroupView& group, std::string_view name) {
  if (const FoundField* found = group.Find(name)) Add(*found, name);
}

void CMentions::AddFields(const CGroupView& group, std::string_view beginning, std::string_view except) {
  for (const NamedField& named : group.Fields()) {
    if (named.name.starts_with(beginning) && named.name != except) Add(*named.field, named.name);
  }
}

void CMentions::AddGroup(const CGroupView& group, std::string_view name) {
  if (const FoundField* first = group.FirstField()) Add(*first, name);
}

void CMentions::Add(const FoundField& found, std::string_view name) {
  if (m_names.emplace(name).second) m_mentions.emplace(&found, name);
}

std::string CMentions::InWords() const {
  constexpr std::size_t most = 6;
  const std::size_t shown = Size() > most ? most - 1 : Size();
  std::vector<std::string> words;
  for (const auto& [found, name] : m_mentions) {
    if (words.size() < shown) words.push_back(Readable(name));
  }
  if (shown < Size()) words.push_back(std::to_string(Size() - shown) + " more");
  return Listed(std::vector<std::string_view>(words.begin(), words.end()));
}

}  // namespace vifanalysis
