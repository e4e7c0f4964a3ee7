#include "FoundField.h"

#include <VIFField.h>
#include <analysis/Edition.h>

#include <charconv>

namespace vifanalysis {

namespace {

const CVIFField* FieldOf(const CVIFField& field) { return &field; }
const CVIFField* FieldOf(const FoundField& found) { return &found.field; }

template <typename List>
std::optional<Edition> CommonEdition(const List& fields) {
  std::optional<Edition> edition;
  for (const auto& field : fields) {
    const std::optional<Edition> named = EditionNamedBy(*FieldOf(field));
    if (!named) continue;
    if (edition && *named != *edition) return std::nullopt;
    edition = named;
  }
  return edition;
}

}  // namespace

std::optional<Edition> ParseEdition(std::string_view text) {
  constexpr std::string_view prefix = "Version ";
  if (text.starts_with(prefix)) text.remove_prefix(prefix.size());
  Edition edition;
  const char* const end = text.data() + text.size();
  const auto first = std::from_chars(text.data(), end, edition.major);
  if (first.ec != std::errc() || first.ptr == end || *first.ptr != '.') return std::nullopt;
  const auto second = std::from_chars(first.ptr + 1, end, edition.minor);
  if (second.ec != std::errc() || second.ptr != end) return std::nullopt;
  return edition;
}

std::optional<Edition> EditionNamedBy(const CVIFField& field) {
  const std::string_view name = field.Name();
  const EVifLocation outermost = std::get<0>(field.Indexes().front());
  const bool isOfFile = outermost == eVifLocUnset || outermost == eVifLocVif;
  if ((name != "VIF_Specification" && name != "$VIF_Specification") || !isOfFile) return std::nullopt;
  const std::string_view value = field.Value();
  return ParseEdition(value.empty() ? field.Description() : value);
}

std::optional<Edition> EditionNamedBy(const std::vector<CVIFField>& fields) { return CommonEdition(fields); }

std::optional<Edition> EditionNamedBy(const FoundFields& fields) { return CommonEdition(fields); }

std::string EditionText(const Edition& edition) {
  return std::to_string(edition.major) + (edition.minor < 10 ? ".0" : ".") + std::to_string(edition.minor);
}

}  // namespace vifanalysis
