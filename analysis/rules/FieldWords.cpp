#include "rules/FieldWords.h"

#include "files/Sentence.h"

#include <analysis/FieldText.h>
#include <analysis/Vocabulary.h>

#include <optional>

namespace vifanalysis {

namespace {

std::string NumberInWords(const FieldInfo& info, std::uint64_t number, const Edition& edition) {
  const std::string_view text = ValueText(info, number, edition);
  if (!text.empty() && info.type == FieldType::Boolean) return std::string(text);
  if (!text.empty()) return std::to_string(number).append(" (").append(text).append(")");
  const std::optional<Quantity> quantity = QuantityOf(info, number);
  return quantity ? QuantityText(*quantity) : std::to_string(number);
}

}  // namespace

std::string NumberAndText(const CComponentView& component, std::string_view name, std::uint64_t number) {
  std::string words = std::to_string(number);
  const FieldInfo* field = FindField(name).field;
  if (field == nullptr) return words;
  const std::string_view text = ValueText(*field, number, component.File().GetEdition().value_or(Edition{}));
  if (!text.empty()) words.append(" (").append(text).append(")");
  return words;
}

std::string ValueInWords(const FoundField& found, const CVifView& file) {
  if (!HasNumber(found.field)) return Quoted(TextOf(found));
  const std::uint64_t number = found.field.GetULongNumericValue();
  const FieldInfo* info = FindField(found.field.Name()).field;
  return info != nullptr ? NumberInWords(*info, number, file.GetEdition().value_or(Edition{})) : std::to_string(number);
}

std::string FieldIs(const FoundField& found, const CVifView& file) {
  return std::string(found.field.Name()).append(" is ").append(ValueInWords(found, file));
}

void CMentions::AddField(const CGroupView& group, std::string_view name) {
  if (const FoundField* found = group.Find(name)) Add(*found, name);
}

void CMentions::AddFields(const CGroupView& group, std::string_view beginning, std::string_view except) {
  for (const auto& [name, found] : group.Fields()) {
    if (name.starts_with(beginning) && name != except) Add(*found, name);
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
  std::string words;
  std::size_t count = 0;
  for (const auto& [found, name] : m_mentions) {
    if (count == shown) return words.append(" and ").append(std::to_string(Size() - shown)).append(" more");
    const bool isLast = count + 1 == Size();
    words.append(count == 0 ? "" : isLast ? " and " : ", ").append(name);
    ++count;
  }
  return words;
}

}  // namespace vifanalysis
