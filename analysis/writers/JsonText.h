// The parts of JSON that documents are made of.
#pragma once

#include <VIFLocations.h>
#include <analysis/FieldText.h>
#include <analysis/Writers.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

/// Appends a text in quotes, with escapes for what JSON does not allow in a text. Bytes that are not UTF-8 become
/// U+FFFD.
void AppendJson(std::string& out, std::string_view text);

/// Appends a number, or null.
void AppendJson(std::string& out, const std::optional<std::uint64_t>& number);

/// Appends the groups of a place that are in use as a list of objects with "location" and "index".
void AppendJson(std::string& out, const GroupPlace& place);

/// Appends a member of an object that already has one.
template <typename Value>
void AppendMember(std::string& out, std::string_view key, const Value& value) {
  out.append(",\"").append(key).append("\":");
  AppendJson(out, value);
}

/// Appends a member with a text, or null if the text is empty, to an object that already has a member.
void AppendTextMember(std::string& out, std::string_view key, std::string_view text);

/// Appends a list to what is in `out`, each item on a line of its own, and passes it all on block by block.
/// \param append gets the text to which it appends an item, and the item
template <typename Items, typename Append>
void WriteList(std::string out, const Items& items, const Append& append, const TextSink& sink) {
  constexpr std::size_t block = std::size_t{64} * 1024;
  out += '[';
  const char* separator = "\n";
  for (const auto& item : items) {
    out += separator;
    append(out, item);
    separator = ",\n";
    if (out.size() < block) continue;
    sink(out);
    out.clear();
  }
  out += items.empty() ? "]" : "\n]";
  sink(out);
}

}  // namespace vifanalysis
