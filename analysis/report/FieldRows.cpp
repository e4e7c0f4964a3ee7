#include "report/FieldRows.h"

#include <analysis/FieldExplanation.h>
#include <analysis/FieldText.h>

#include <algorithm>
#include <optional>

namespace vifanalysis {

namespace {

std::string EditionsText(const FieldExplanation& field) {
  if (field.firstEdition.empty()) return {};
  return field.firstEdition == field.lastEdition ? field.firstEdition : field.firstEdition + " to " + field.lastEdition;
}

std::string ValuesText(const FieldExplanation& field) {
  std::string text;
  for (const ExplainedValue& value : field.values) {
    text.append(text.empty() ? "" : "; ").append(value.value).append(" ").append(value.text);
    if (value.confidence == Confidence::Low) text += " (uncertain)";
  }
  return text;
}

void WriteItem(CMarkup& page, std::string_view label, const std::string& text) {
  if (text.empty()) return;
  page.Begin("p");
  page.Element("b", label);
  page.Text(" " + text);
  page.End();
}

void WriteExplanation(CMarkup& page, const FieldExplanation& field) {
  page.Element("p", field.confidence == Confidence::Low ? field.declares + " (uncertain)" : field.declares);
  if (!field.note.empty()) page.Element("p", field.note);
  if (field.asked != NameKind::Canonical && field.asked != NameKind::TextForm) {
    WriteItem(page, "Field", field.name + ": " + std::string(NameKindText(field.asked)));
  }
  WriteItem(page, "Unit", field.unitIsWeak ? field.unit + " (uncertain)" : field.unit);
  if (field.type != "boolean") WriteItem(page, "Values", ValuesText(field));
  WriteItem(page, "Editions", EditionsText(field));
}

std::string ExplanationId(std::string_view name) { return "explain-" + std::string(name); }

}  // namespace

void WriteValue(CMarkup& page, const ShownValue& shown) {
  page.Element("span", {{"class", "value"}}, shown.value);
  if (!shown.description.empty()) {
    page.Text(" ");
    page.Element("span", {{"class", "description"}}, shown.description);
  }
  if (!shown.meaning.empty()) {
    page.Text(" ");
    page.Element("span", {{"class", "meaning"}}, shown.isUncertain ? shown.meaning + " (uncertain)" : shown.meaning);
  }
}

void CFieldNames::Write(CMarkup& page, std::string_view name) {
  const std::optional<FieldExplanation> explanation = ExplainField(name);
  page.Begin("th", {{"scope", "row"}});
  if (!explanation) {
    page.Text(name);
  } else if (m_explained.insert(explanation->name).second) {
    page.Begin("details", {{"class", "explain"}, {"id", ExplanationId(explanation->name)}});
    page.Element("summary", name);
    WriteExplanation(page, *explanation);
    page.End();
  } else {
    page.Text(name);
    page.Text(" ");
    page.Element("a",
                 {{"class", "explained"},
                  {"href", '#' + ExplanationId(explanation->name)},
                  {"aria-label", "What " + explanation->name + " means"}},
                 "?");
  }
  page.End();
}

std::string GroupTitle(const GroupPlace& place) {
  switch (GroupKind(place)) {
    case eVifLocUnset: return "The file";
    case eVifLocVif: return "The VIF";
    case eVifLocAppVersion: return "The program that wrote it";
    case eVifLocProduct: return "Product";
    default: return PlaceInWords(place);
  }
}

void BeginTable(CMarkup& page, const std::string& caption, const std::vector<std::string_view>& headings) {
  page.Begin("table", {{"class", "fields"}});
  page.Element("caption", caption);
  page.Begin("thead");
  page.Begin("tr");
  for (const std::string_view heading : headings) page.Element("th", {{"scope", "col"}}, heading);
  page.End();
  page.End();
  page.Begin("tbody");
}

void EndTable(CMarkup& page) {
  page.End();
  page.End();
}

void WriteFilter(CMarkup& page) {
  page.Begin("p", {{"id", "filter-box"}, {"hidden", ""}});
  page.Element("label", {{"for", "filter"}}, "Filter");
  page.Text(" ");
  page.Void("input", {{"id", "filter"}, {"type", "search"}, {"autocomplete", "off"}, {"spellcheck", "false"}});
  page.Text(" ");
  page.Element("output", {{"id", "filter-count"}, {"for", "filter"}, {"aria-live", "polite"}}, "");
  page.End();
}

}  // namespace vifanalysis
