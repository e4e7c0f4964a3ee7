// What the fuzzers check besides that nothing crashes.
#pragma once

#include "VIFField.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

/// Ends the program with a message when a promise is broken, which the fuzzer counts as a finding.
void Require(bool isKept, std::string_view promise);

/// What a message shows of a value.
std::string Shown(std::string_view text);
std::string Shown(std::uint64_t number);
std::string Shown(const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& slots);

/// The same when two values differ; the message shows both.
template <typename Value>
void RequireSame(const Value& actual, const Value& expected, std::string_view promise) {
  if (actual == expected) return;
  Require(false, std::string(promise) + "; there is " + Shown(actual) + " where " + Shown(expected) + " is expected");
}

/// What holds for every field, whatever it was made from: unused slots come last and hold nothing, used ones name
/// locations, the number agrees with its narrow form and with the numeric flag, and the field passes a query for its
/// own place.
void CheckField(const CVIFField& field);

/// Whether two fields agree in all that can be asked of them.
bool AreSame(const CVIFField& one, const CVIFField& other);
bool AreSame(const std::vector<CVIFField>& one, const std::vector<CVIFField>& other);

/// Whether the text is UTF-8.
bool IsUtf8(std::string_view text);

}  // namespace fuzz
