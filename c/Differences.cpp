#include "Differences.h"

#include "File.h"
#include "Findings.h"
#include "Guard.h"
#include "Indexes.h"
#include "Utf8.h"

#include <memory>
#include <optional>
#include <utility>

namespace vifc {

namespace {

using vifanalysis::DeclaredField;
using vifanalysis::Difference;
using vifanalysis::DifferenceKind;
using vifanalysis::Differences;
using vifanalysis::GroupChange;
using vifanalysis::GroupChangeKind;

static_assert(VIF_NO_POSITION == Difference::kNoGroup);

void Repair(std::optional<DeclaredField>& field) {
  if (!field) return;
  for (std::string* text : {&field->name, &field->value, &field->description, &field->text, &field->meaning}) {
    MakeUtf8(*text);
  }
}

Differences Repaired(Differences differences) {
  for (Difference& difference : differences.fields) {
    MakeUtf8(difference.name);
    Repair(difference.before);
    Repair(difference.after);
  }
  for (GroupChange& change : differences.groups) MakeUtf8(change.summary);
  return differences;
}

int32_t KindOf(DifferenceKind kind) {
  switch (kind) {
    case DifferenceKind::Changed: return VIF_CHANGED;
    case DifferenceKind::Added: return VIF_ADDED;
    case DifferenceKind::Removed: break;
  }
  return VIF_REMOVED;
}

int32_t KindOf(GroupChangeKind kind) {
  switch (kind) {
    case GroupChangeKind::Added: return VIF_ADDED;
    case GroupChangeKind::Removed: return VIF_REMOVED;
    case GroupChangeKind::Moved: return VIF_MOVED;
    case GroupChangeKind::Renumbered: break;
  }
  return VIF_RENUMBERED;
}

vif_declared_field Declared(const std::optional<DeclaredField>& field) {
  vif_declared_field filled = {"", "", "", "", "", VIF_NO_NUMBER, VIF_NO_POSITION, 0, 0, {}};
  if (!field) {
    const Slots none = {CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX};
    filled.index_count = CopySlots(none, filled.indexes);
    return filled;
  }
  filled.name = field->name.c_str();
  filled.value = field->value.c_str();
  filled.description = field->description.c_str();
  filled.text = field->text.c_str();
  filled.meaning = field->meaning.c_str();
  filled.number = field->number.value_or(VIF_NO_NUMBER);
  filled.position = field->position;
  filled.meaning_is_uncertain = field->isUncertain ? 1 : 0;
  filled.index_count = CopySlots(field->indexes, filled.indexes);
  return filled;
}

}  // namespace

vifanalysis::CompareOptions CompareOptionsOf(const vif_compare_options* given) {
  return {TakeIn(given).descriptions != 0};
}

}  // namespace vifc

vif_differences::vif_differences(vifanalysis::Differences found, Owner whose)
    : content(vifc::Repaired(std::move(found))), owner(whose) {}

vif_status vif_compare(const vif_file* before, const vif_file* after, const vif_compare_options* options,
                       const vif_progress* progress, vif_differences** differences, vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(differences != nullptr, "there is nowhere to put the differences");
    *differences = nullptr;
    const CVendorInfoFile& first = vifc::Usable(before).content.file;
    const CVendorInfoFile& second = vifc::Usable(after).content.file;
    const vifanalysis::CompareOptions how = vifc::CompareOptionsOf(options);
    const vifc::CProgress report(progress);
    report(0, 1);
    auto made =
        std::make_unique<vif_differences>(vifanalysis::Compare(first.Fields(), second.Fields(), how), Owner::Caller);
    report(1, 1);
    *differences = made.release();
  });
}

size_t vif_differences_count(const vif_differences* differences) {
  return vifc::IsUsable(differences) ? differences->content.fields.size() : 0;
}

vif_status vif_differences_get(const vif_differences* differences, size_t position, vif_difference* difference) {
  if (const vif_status status = vifc::StatusOf(differences); status != VIF_OK) return status;
  if (position >= differences->content.fields.size()) return VIF_ERROR_ARGUMENT;
  const vifc::Difference& found = differences->content.fields[position];
  vif_difference filled = {};
  filled.name = found.name.c_str();
  filled.group = found.group;
  filled.kind = vifc::KindOf(found.kind);
  filled.place_count = vifc::CopySlots(found.place, filled.place);
  filled.before = vifc::Declared(found.before);
  filled.after = vifc::Declared(found.after);
  return vifc::HandOut(filled, difference);
}

size_t vif_differences_group_count(const vif_differences* differences) {
  return vifc::IsUsable(differences) ? differences->content.groups.size() : 0;
}

vif_status vif_differences_group(const vif_differences* differences, size_t position, vif_group_change* change) {
  if (const vif_status status = vifc::StatusOf(differences); status != VIF_OK) return status;
  if (position >= differences->content.groups.size()) return VIF_ERROR_ARGUMENT;
  const vifc::GroupChange& found = differences->content.groups[position];
  vif_group_change filled = {};
  filled.summary = found.summary.c_str();
  filled.field_count = found.fieldCount;
  filled.kind = vifc::KindOf(found.kind);
  filled.before_count = vifc::CopySlots(found.before, filled.before);
  filled.after_count = vifc::CopySlots(found.after, filled.after);
  return vifc::HandOut(filled, change);
}

void vif_differences_free(vif_differences* differences) {
  if (vifc::IsUsable(differences) && differences->owner == Owner::Caller) delete differences;
}

vif_status vif_compare_findings(const vif_findings* before, const vif_findings* after,
                                const vif_differences* differences, vif_findings** fixed, vif_findings** added,
                                vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(fixed != nullptr && added != nullptr, "there is nowhere to put the findings");
    *fixed = *added = nullptr;
    const std::vector<vifanalysis::Finding>& first = vifc::Usable(before).list;
    const std::vector<vifanalysis::Finding>& second = vifc::Usable(after).list;
    const vifc::Differences none;
    const vifc::Differences& how = differences != nullptr ? vifc::Usable(differences).content : none;
    vifanalysis::FindingChanges changes = vifanalysis::CompareFindings(first, second, how);
    auto gone = std::make_unique<vif_findings>(std::move(changes.fixed));
    *added = new vif_findings(std::move(changes.added));
    *fixed = gone.release();
  });
}
