// Queries, against bare loops over arrays of what they look at.
//
// Some go over fields as the format defines them, the others over fields that nobody would tune a search for: of many
// more components than a file has, and with names that differ only in their last characters.
#include "Samples.h"
#include "Subjects.h"
#include "VendorInfoFile.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <regex>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

namespace bench {

namespace {

/// Asks for the same over and over.
void AskOver(benchmark::State& state, std::size_t expected, const std::function<std::size_t()>& ask) {
  if (ask() != expected || expected == 0) throw std::runtime_error("the query does not find what it should");
  while (state.KeepRunning()) benchmark::DoNotOptimize(ask());
}

constexpr std::size_t kManyFields = 100'000;

using Fields = std::vector<CVIFField>;

Fields ManySampleFields() { return SampleFields(kManyFields); }

/// Of 1,000 components with 7 source PDOs each, all of which have equally many fields.
Fields SpreadFields() {
  constexpr std::size_t components = 1000;
  constexpr std::size_t pdos = 7;
  Fields fields;
  fields.reserve(kManyFields);
  for (std::size_t i = 0; i < kManyFields; ++i) {
    fields.emplace_back(true, "Src_PDO_Voltage", "100", VifIndex{eVifLocComponent, 1 + i % components},
                        VifIndex{eVifLocSrcPdo, 1 + i % pdos}, CVIFField::UNSPECIFIED_INDEX);
  }
  return fields;
}

/// The name of one of the fields below, in other letter case.
constexpr const char* kNameOfAlike = "src_pdo_field_77777";

/// With names that all begin alike.
Fields AlikeFields() {
  const VifIndex any = CVIFField::UNSPECIFIED_INDEX;
  Fields fields;
  fields.reserve(kManyFields);
  for (std::size_t i = 0; i < kManyFields; ++i) {
    fields.emplace_back(true, "Src_PDO_Field_" + std::to_string(i), "1", any, any, any);
  }
  return fields;
}

std::vector<std::string> NamesOf(const std::vector<CVIFField>& fields) {
  std::vector<std::string> names;
  names.reserve(fields.size());
  for (const CVIFField& field : fields) names.emplace_back(field.Name());
  return names;
}

// By location.

struct Slot {
  std::uint32_t location = 0;
  std::uint64_t number = 0;
};
using Slots = std::array<Slot, 3>;

constexpr Slots kQuery = {Slot{eVifLocComponent, 3}, Slot{eVifLocSrcPdo, 2}, Slot{eVifLocUnset, 0}};

VifIndex IndexOf(const Slot& slot) { return {static_cast<EVifLocation>(slot.location), slot.number}; }

Slots SlotsOf(const CVIFField& field) {
  Slots slots;
  std::transform(field.Indexes().begin(), field.Indexes().end(), slots.begin(), [](const VifIndex& index) {
    return Slot{static_cast<std::uint32_t>(std::get<0>(index)), std::get<1>(index)};
  });
  return slots;
}

/// The first slot with the location decides.
bool PassesSlot(const Slots& slots, const Slot& query) {
  if (query.location == eVifLocUnset) return true;
  for (const Slot& slot : slots) {
    if (slot.location == query.location) {
      return query.number == CVIFField::INDEX_NOT_SPECIFIED || slot.number == query.number;
    }
  }
  return false;
}

std::size_t CountPassing(const std::vector<Slots>& all, const Slots& query) {
  std::size_t count = 0;
  for (const Slots& slots : all) {
    if (PassesSlot(slots, query[0]) && PassesSlot(slots, query[1]) && PassesSlot(slots, query[2])) ++count;
  }
  return count;
}

std::vector<Slots> SlotsOfAll(const std::vector<CVIFField>& fields) {
  std::vector<Slots> all;
  all.reserve(fields.size());
  for (const CVIFField& field : fields) all.push_back(SlotsOf(field));
  return all;
}

/// How many fields the query should find, according to the fields themselves.
std::size_t PassingFields(const std::vector<CVIFField>& fields) {
  return static_cast<std::size_t>(std::count_if(fields.begin(), fields.end(), [](const CVIFField& field) {
    return field.Index(eVifLocComponent) == kQuery[0].number && field.Index(eVifLocSrcPdo) == kQuery[1].number;
  }));
}

Work CountByLocation(Fields (*makeFields)()) {
  return [makeFields](benchmark::State& state) {
    const Fields fields = makeFields();
    const CVendorInfoFile vif(fields);
    AskOver(state, PassingFields(fields),
            [&] { return vif.Count(nullptr, IndexOf(kQuery[0]), IndexOf(kQuery[1]), IndexOf(kQuery[2])); });
  };
}

Work CountSlots(Fields (*makeFields)()) {
  return [makeFields](benchmark::State& state) {
    const Fields fields = makeFields();
    const std::vector<Slots> all = SlotsOfAll(fields);
    Slots query = kQuery;
    benchmark::DoNotOptimize(all.data());
    benchmark::DoNotOptimize(query);  // the compiler must not know it, because the library does not
    AskOver(state, PassingFields(fields), [&] { return CountPassing(all, query); });
  };
}

// By a plain name.

Work FindUniqueName(Fields (*makeFields)(), const char* pattern) {
  return [makeFields, pattern](benchmark::State& state) {
    const CVendorInfoFile vif(makeFields());
    const VifIndex any = CVIFField::UNSPECIFIED_INDEX;
    AskOver(state, 1, [&]() -> std::size_t { return vif.GetUniqueField(pattern, any, any, any).IsNumeric() ? 1 : 0; });
  };
}

Work CompareNames(Fields (*makeFields)(), const char* pattern) {
  return [makeFields, pattern](benchmark::State& state) {
    const std::vector<std::string> names = NamesOf(makeFields());
    benchmark::DoNotOptimize(names.data());
    AskOver(state, 1, [&] {
      std::size_t count = 0;
      for (const std::string& name : names) {
        if (strcasecmp(name.c_str(), pattern) == 0) ++count;
      }
      return count;
    });
  };
}

// By a regular expression.

constexpr std::size_t kFewerFields = 10'000;
constexpr const char* kExpression = "Src_PDO_.*";

std::size_t NamesWithPrefix(const std::vector<std::string>& names) {
  return static_cast<std::size_t>(
      std::count_if(names.begin(), names.end(), [](const std::string& name) { return name.starts_with("Src_PDO_"); }));
}

void CountByExpression(benchmark::State& state) {
  const std::vector<CVIFField> fields = SampleFields(kFewerFields);
  const CVendorInfoFile vif(fields);
  const VifIndex any = CVIFField::UNSPECIFIED_INDEX;
  AskOver(state, NamesWithPrefix(NamesOf(fields)), [&] { return vif.Count(kExpression, any, any, any); });
}

void MatchNames(benchmark::State& state) {
  const std::vector<std::string> names = NamesOf(SampleFields(kFewerFields));
  const std::regex expression(kExpression, std::regex_constants::ECMAScript | std::regex_constants::icase);
  AskOver(state, NamesWithPrefix(names), [&] {
    return static_cast<std::size_t>(std::count_if(
        names.begin(), names.end(), [&](const std::string& name) { return std::regex_match(name, expression); }));
  });
}

}  // namespace

void AddQueries(CRatioTable& table) {
  table.AddPair({"query/location", "`Count` by two locations over 100,000 fields",
                 "a bare loop over an array of the same slots", AtMost(3)},
                CountByLocation(ManySampleFields), CountSlots(ManySampleFields));
  table.AddPair({"query/location/spread", "`Count` by two locations over 100,000 fields of 1,000 components",
                 "a bare loop over an array of the same slots", AtMost(2.5)},
                CountByLocation(SpreadFields), CountSlots(SpreadFields));
  table.AddPair({"query/name", "`GetUniqueField` by a plain name over 100,000 fields",
                 "a loop of `strcasecmp` over the same names", AtMost(1.5)},
                FindUniqueName(ManySampleFields, kUniqueName), CompareNames(ManySampleFields, kUniqueName));
  table.AddPair({"query/name/alike", "`GetUniqueField` by a plain name over 100,000 fields with names like it",
                 "a loop of `strcasecmp` over the same names", AtMost(1.5)},
                FindUniqueName(AlikeFields, kNameOfAlike), CompareNames(AlikeFields, kNameOfAlike));
  table.AddPair({"query/expression", "`Count` by `Src_PDO_.*` over 10,000 fields",
                 "a loop of `std::regex_match` with one compiled `std::regex`", AtMost(1.2)},
                CountByExpression, MatchNames);
}

}  // namespace bench
