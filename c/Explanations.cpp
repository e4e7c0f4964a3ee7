// What fields mean.
#include "Guard.h"

#include <analysis/FieldExplanation.h>
#include <analysis/Rules.h>
#include <analysis/Vocabulary.h>

#include <optional>
#include <string>
#include <utility>

struct vif_explanation : vifc::CHandle<vifc::HandleKind::Explanation> {
  explicit vif_explanation(vifanalysis::FieldExplanation found) : content(std::move(found)) {}

  const vifanalysis::FieldExplanation content;
};

namespace vifc {

namespace {

/// The texts of constants, which are literals and so end with a NUL.
const char* TextOf(vifanalysis::Confidence confidence) { return vifanalysis::ConfidenceText(confidence).data(); }

const char* TextOf(vifanalysis::NameKind kind) {
  const std::string_view text = vifanalysis::NameKindText(kind);
  return text.empty() ? "" : text.data();
}

/// Why the name asked for means the field; nothing when it is its own.
const char* AskedText(vifanalysis::NameKind kind) {
  return kind == vifanalysis::NameKind::Canonical ? "" : TextOf(kind);
}

[[noreturn]] void RefuseName(const std::string& name) {
  std::string nearest = vifanalysis::SuggestField(name);
  if (nearest.empty()) nearest = vifanalysis::NearestCode(name).value_or("");
  const std::string advice = nearest.empty() ? "" : "; did you mean '" + nearest + "'?";
  throw CFailure(VIF_ERROR_NOT_FOUND, "there is no field '" + name + "'" + advice);
}

}  // namespace

}  // namespace vifc

vif_status vif_explain(const char* name, vif_explanation** explanation, vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(explanation != nullptr, "there is nowhere to put the explanation");
    *explanation = nullptr;
    vifc::Require(name != nullptr, "the name is NULL");
    std::optional<vifanalysis::FieldExplanation> found = vifanalysis::ExplainField(name);
    if (!found) vifc::RefuseName(name);
    *explanation = new vif_explanation(std::move(*found));
  });
}

vif_status vif_explanation_get(const vif_explanation* explanation, vif_explained_field* field) {
  if (const vif_status status = vifc::StatusOf(explanation); status != VIF_OK) return status;
  const vifanalysis::FieldExplanation& content = explanation->content;
  vif_explained_field filled = {};
  filled.name = content.name.c_str();
  filled.asked = vifc::AskedText(content.asked);
  filled.also_means = content.alsoMeans.c_str();
  filled.group = content.group.c_str();
  filled.declares = content.declares.c_str();
  filled.note = content.note.c_str();
  filled.type = content.type.c_str();
  filled.unit = content.unit.c_str();
  filled.first_edition = content.firstEdition.c_str();
  filled.last_edition = content.lastEdition.c_str();
  filled.confidence = vifc::TextOf(content.confidence);
  filled.unit_is_weak = content.unitIsWeak ? 1 : 0;
  filled.seen = content.seen ? 1 : 0;
  filled.value_count = content.values.size();
  filled.spelling_count = content.spellings.size();
  filled.source_count = content.sources.size();
  return vifc::HandOut(filled, field);
}

vif_status vif_explanation_value(const vif_explanation* explanation, size_t position, vif_explained_value* value) {
  if (const vif_status status = vifc::StatusOf(explanation); status != VIF_OK) return status;
  if (position >= explanation->content.values.size()) return VIF_ERROR_ARGUMENT;
  const vifanalysis::ExplainedValue& found = explanation->content.values[position];
  return vifc::HandOut(vif_explained_value{0, found.value.c_str(), found.text.c_str(), vifc::TextOf(found.confidence),
                                           found.seen ? 1 : 0, 0},
                       value);
}

vif_status vif_explanation_spelling(const vif_explanation* explanation, size_t position,
                                    vif_explained_spelling* spelling) {
  if (const vif_status status = vifc::StatusOf(explanation); status != VIF_OK) return status;
  if (position >= explanation->content.spellings.size()) return VIF_ERROR_ARGUMENT;
  const vifanalysis::ExplainedSpelling& found = explanation->content.spellings[position];
  return vifc::HandOut(vif_explained_spelling{0, found.name.c_str(), vifc::TextOf(found.kind), found.first.c_str(),
                                              found.last.c_str(), found.why.c_str(), vifc::TextOf(found.confidence)},
                       spelling);
}

const char* vif_explanation_source(const vif_explanation* explanation, size_t position) {
  if (!vifc::IsUsable(explanation) || position >= explanation->content.sources.size()) return nullptr;
  return explanation->content.sources[position].c_str();
}

void vif_explanation_free(vif_explanation* explanation) { vifc::Free(explanation); }
