#include "rules/SoundFields.h"

#include "files/Sentence.h"

#include <analysis/Vocabulary.h>

namespace vifanalysis {

namespace {

std::string NumberWords(std::string_view name, std::uint64_t number) {
  const FieldInfo* info = FindField(name).field;
  const std::string_view text = info != nullptr ? ValueText(*info, number) : std::string_view();
  if (text.empty()) return std::to_string(number);
  if (info->type == FieldType::Boolean) return std::string(text);
  return std::to_string(number).append(" (").append(text).append(")");
}

}  // namespace

std::string Says(const CGroupView& group, std::string_view name) {
  const std::string field(name);
  if (!group.Has(name)) return field + " is missing";
  const std::optional<std::uint64_t> number = group.Number(name);
  return field + " is " + (number ? NumberWords(name, *number) : Quoted(group.Text(name)));
}

std::string Listed(const std::vector<std::string_view>& names) {
  std::string list;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) list.append(i + 1 < names.size() ? ", " : " and ");
    list.append(names[i]);
  }
  return list;
}

std::string AreMissing(const std::vector<std::string_view>& names) {
  return Listed(names) + (names.size() == 1 ? " is missing" : " are missing");
}

std::optional<std::uint64_t> SoundNumber(const CGroupView& group, std::string_view name, const CReporter& reporter) {
  const FoundField* found = group.Find(name);
  if (found == nullptr || reporter.HasFound("unanswered", *found) || reporter.HasFound("value-out-of-range", *found)) {
    return std::nullopt;
  }
  return group.Number(name);
}

bool IsMissing(const CComponentView& component, std::string_view name) {
  const std::optional<Edition>& edition = component.File().GetEdition();
  const FieldInfo* info = FindField(name).field;
  return !component.Has(name) && edition && info != nullptr && FitsEdition(*info, *edition) == EditionFit::Known;
}

std::optional<std::uint64_t> PdRole(const CComponentView& component) {
  return component.IsNo("USB_PD_Support") ? std::nullopt : component.Number("PD_Port_Type");
}

}  // namespace vifanalysis
