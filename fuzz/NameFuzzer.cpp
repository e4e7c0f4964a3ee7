// Resolves any name by the built-in table and by a copy of it, which plain code does, and by the same definitions
// compiled once more, whose regular expressions are matched one after the other.
#include "Checks.h"
#include "FieldResolver.h"
#include "KnownFields.h"
#include "KnownFieldsReference.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

using fuzz::Require;

constexpr std::uint32_t kComponent = 3;

/// A name of the format, with digits where its indexes stand.
std::string AnyKnownName(std::minstd_rand& random) {
  const auto fields = vif::KnownFields();
  const auto below = [&](std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random);
  };
  std::string name;
  for (const char c : fields[below(fields.size())].spelling) {
    if (c == vif::kIndexMark) {
      name += std::to_string(below(100));
    } else {
      name += c;
    }
  }
  return name;
}

/// The built-in definitions, compiled once more.
std::vector<VifFieldDef> Recompiled() {
  std::vector<VifFieldDef> table = VifFieldDefs::GetVifFieldDefs();
  for (std::size_t i = 0; i < table.size(); ++i) table[i].pattern = kReferenceFields[i].pattern;
  return table;
}

void RequireSameName(const vif::ResolvedName& resolved, const vif::ResolvedName& expected) {
  Require(resolved.isKnown == expected.isKnown, "plain code knows the names that the patterns know");
  fuzz::RequireSame(resolved.name, expected.name, "plain code gives a field the name that the patterns give it");
  fuzz::RequireSame(resolved.slots, expected.slots, "plain code gives a field the place that the patterns give it");
}

}  // namespace

/// Begins with a name of the format now and then, and changes it, or what there is, in the ways of libFuzzer.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed) {
  std::minstd_rand random(seed);
  if (std::bernoulli_distribution(0.3)(random)) {
    const std::string name = AnyKnownName(random).substr(0, maxSize);
    std::copy(name.begin(), name.end(), data);
    size = name.size();
  }
  return LLVMFuzzerMutate(data, size, maxSize);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::vector<VifFieldDef> copy = VifFieldDefs::GetVifFieldDefs();
  static const std::vector<VifFieldDef> recompiled = Recompiled();
  const std::string name(data, data + size);
  const vif::CFieldResolver byCode(nullptr, kComponent);
  vif::ResolvedName resolved;
  byCode.Resolve(name, resolved);
  Require(byCode.Knows(name) == resolved.isKnown, "a name that is known is resolved");
  Require(resolved.isKnown || resolved.name == name, "an unknown name stays as it is");

  vif::ResolvedName byCopy;
  vif::CFieldResolver(&copy, kComponent).Resolve(name, byCopy);
  RequireSameName(resolved, byCopy);

  const vif::CFieldResolver byPatterns(&recompiled, kComponent);
  vif::ResolvedName expected;
  try {
    byPatterns.Resolve(name, expected);
  } catch (const std::regex_error&) {
    return 0;  // the name is too much for the matcher
  }
  RequireSameName(resolved, expected);
  return 0;
}
