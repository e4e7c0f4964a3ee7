// What the fuzzers check, apart from crashes.
#pragma once

#include "VIFField.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

/// Aborts with a message if a promise is broken, which the fuzzer counts as a finding.
void Require(bool isKept, std::string_view promise);

/// How a message shows a value.
std::string Shown(std::string_view text);
std::string Shown(std::uint64_t number);
std::string Shown(const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& slots);

/// Does the same if two values differ; the message shows both.
template <typename Value>
void RequireSame(const Value& actual, const Value& expected, std::string_view promise) {
  if (actual == expected) return;
  Require(false, std::string(promise) + "; got " + Shown(actual) + ", expected " + Shown(expected));
}

/// Checks what holds for every field, whatever its source: unused slots come last and hold nothing, used ones name
/// locations, the number agrees with its narrow form and with the numeric flag, and the field matches a query for its
/// own place.
void CheckField(const CVIFField& field);

/// Whether two fields agree in everything that their members return.
bool AreSame(const CVIFField& one, const CVIFField& other);
bool AreSame(const std::vector<CVIFField>& one, const std::vector<CVIFField>& other);

/// Whether the text is UTF-8.
bool IsUtf8(std::string_view text);

}  // namespace fuzz
