#include "files/Sentence.h"
#include "rules/NumberInText.h"
#include "rules/RuleFunctions.h"

#include <analysis/FieldText.h>
#include <analysis/Vocabulary.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string>

namespace vifanalysis {

namespace {

/// What decides the units in one PDO, and the fields that say so; null where there is none.
struct PdoUnits {
  PdoContext context;
  std::array<const FoundField*, 3> deciding{};
};

constexpr std::string_view kThresholdType = "Src_PD_OCP_UV_Threshold_Type";

using UnitsByPlace = std::map<GroupPlace, PdoUnits>;

UnitsByPlace CollectUnits(const CVifView& file) {
  UnitsByPlace units;
  for (const CComponentView& component : file.Components()) {
    for (const PdoSide side : {PdoSide::Source, PdoSide::Sink}) {
      for (const CPdoView& pdo : component.Pdos(side)) {
        units[pdo.Place()] = {
            {pdo.OwnNumber("Supply_Type"), pdo.OwnNumber("APDO_Type"), pdo.Number(kThresholdType),
             file.GetEdition().value_or(Edition{})},
            {pdo.FindOwn("Supply_Type"), pdo.FindOwn("APDO_Type"), pdo.Find(kThresholdType)},
        };
      }
    }
  }
  return units;
}

/// The text in lower case, without the signs of trademarks that editors add.
std::string Plain(std::string_view text) {
  std::string plain(text);
  for (const std::string_view sign : {"®", "™"}) {
    for (std::size_t at = plain.find(sign); at != std::string::npos; at = plain.find(sign, at))
      plain.erase(at, sign.size());
  }
  for (char& c : plain) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return plain;
}

bool IsNameOf(const FieldValue& row, const std::string& plain) {
  const std::array names = {row.text, row.otherTexts[0], row.otherTexts[1], row.olderText};
  return std::any_of(names.begin(), names.end(),
                     [&](std::string_view name) { return !name.empty() && Plain(name) == plain; });
}

/// Whether the text is the name of another value of an enumeration, and not that of its own.
bool NamesOtherValue(const FieldInfo& field, std::uint64_t number, std::string_view text) {
  constexpr std::size_t longest = 100;  // no name is longer
  if (text.empty() || text.size() > longest) return false;
  const std::string plain = Plain(text);
  bool isOther = false;
  for (const FieldValue& row : field.values) {
    if (!IsNameOf(row, plain)) continue;
    if (row.value == number) return false;
    isOther = isOther || row.confidence != Confidence::Low;
  }
  return isOther;
}

/// Identifiers are written in hexadecimal or in decimal.
bool IsOtherIdentifier(const FieldInfo& field, std::string_view text, std::uint64_t number) {
  const std::optional<std::uint64_t> hexadecimal = HexadecimalIn(text);
  return hexadecimal && hexadecimal != number && CountIn(text, field.name) != number;
}

bool IsOtherQuantity(const FieldInfo& field, std::string_view text, const Quantity& quantity) {
  switch (quantity.unit) {
    case Unit::Count: {
      const std::optional<std::uint64_t> count = CountIn(text, field.name);
      return count && *count != quantity.amount;
    }
    case Unit::Identifier:
    case Unit::DecimalIdentifier:
    case Unit::Bits: return IsOtherIdentifier(field, text, quantity.amount);
    default: {
      const std::optional<Quantity> said = QuantityIn(text);
      return said && said->unit == quantity.unit && said->amount != quantity.amount;
    }
  }
}

/// What the number stands for when the text says something else; empty when that is not known, and nothing when the
/// text does not say anything else.
std::optional<std::string> ContradictedMeaning(const FieldInfo& field, std::uint64_t number, std::string_view text,
                                               const PdoContext& context) {
  if (NamesOtherValue(field, number, text)) return std::string(ValueText(field, number, context.edition));
  const FieldUnit* unit = FindUnit(field, context);
  const std::optional<Quantity> quantity = QuantityOf(field, number, context);
  if (unit == nullptr || unit->confidence == Confidence::Low || !quantity) return std::nullopt;
  if (!IsOtherQuantity(field, text, *quantity)) return std::nullopt;
  const std::string meaning = QuantityText(*quantity);
  return meaning != std::to_string(number) ? meaning : std::string();
}

void CheckField(const FoundField& found, const PdoContext& context, CReporter& reporter) {
  const std::string_view text = found.field.Description();
  if (text.empty() || text == found.field.Value() || !HasNumber(found.field)) return;
  const NameMatch match = FindField(found.field.Name());
  if (match.kind != NameKind::Canonical && match.kind != NameKind::OtherSpelling) return;
  const std::uint64_t number = found.field.GetULongNumericValue();
  const std::optional<std::string> meaning = ContradictedMeaning(*match.field, number, text, context);
  if (!meaning) return;
  const std::string words = meaning->empty() ? std::string() : " (" + *meaning + ")";
  reporter.Add(found, Quoted(found.field.Name()) + " is " + std::to_string(number) + words + ", but its text says " +
                          Quoted(text));
}

void CheckDeciding(const PdoUnits& units, CReporter& reporter) {
  for (const FoundField* field : units.deciding) {
    if (field != nullptr) CheckField(*field, units.context, reporter);
  }
}

bool IsDeciding(const FoundField& found, const PdoUnits& units) {
  return std::find(units.deciding.begin(), units.deciding.end(), &found) != units.deciding.end();
}

/// With a wrong supply type, for instance, the units are wrong, too, wherever in the PDO it stands.
bool AreInDoubt(const PdoUnits& units, const CReporter& reporter) {
  return std::any_of(units.deciding.begin(), units.deciding.end(), [&](const FoundField* field) {
    return field != nullptr && reporter.HasFound("text-against-value", *field);
  });
}

}  // namespace

void CheckTextAgainstValue(const CVifView& file, CReporter& reporter) {
  const UnitsByPlace unitsByPlace = CollectUnits(file);
  const PdoUnits noPdo = {{{}, {}, {}, file.GetEdition().value_or(Edition{})}};
  for (const auto& [place, units] : unitsByPlace) CheckDeciding(units, reporter);
  for (const FoundField& found : file.Fields()) {
    const auto place = unitsByPlace.find(found.field.Indexes());
    const PdoUnits& units = place != unitsByPlace.end() ? place->second : noPdo;
    if (!IsDeciding(found, units) && !AreInDoubt(units, reporter)) CheckField(found, units.context, reporter);
  }
}

}  // namespace vifanalysis
