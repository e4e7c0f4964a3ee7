#include "writers/JsonText.h"

#include <analysis/Text.h>

#include <algorithm>

namespace vifanalysis {

namespace {

bool IsSimple(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

void AppendEscape(std::string& out, char c) {
  constexpr std::string_view digits = "0123456789abcdef";
  const auto byte = static_cast<unsigned char>(c);
  switch (c) {
    case '"': out += "\\\""; break;
    case '\\': out += "\\\\"; break;
    case '\b': out += "\\b"; break;
    case '\f': out += "\\f"; break;
    case '\n': out += "\\n"; break;
    case '\r': out += "\\r"; break;
    case '\t': out += "\\t"; break;
    default: out.append("\\u00").append({digits[byte >> 4U], digits[byte & 0xFU]});
  }
}

bool NeedsEscape(char c) { return static_cast<unsigned char>(c) < ' ' || c == '"' || c == '\\'; }

}  // namespace

// Most text is simple, and a large file has a great deal of it.
void AppendJson(std::string& out, std::string_view text) {
  out += '"';
  if (std::all_of(text.begin(), text.end(), IsSimple)) {
    out += text;
  } else {
    for (const char c : ValidUtf8(text)) {
      if (NeedsEscape(c)) {
        AppendEscape(out, c);
      } else {
        out += c;
      }
    }
  }
  out += '"';
}

void AppendJson(std::string& out, const std::optional<std::uint64_t>& number) {
  out += number ? std::to_string(*number) : "null";
}

void AppendJson(std::string& out, const GroupPlace& place) {
  out += '[';
  const char* separator = "";
  for (const VifIndex& slot : place) {
    if (!IsUsed(slot)) continue;
    out.append(separator).append(R"({"location":)");
    AppendJson(out, LocationName(slot));
    out.append(R"(,"index":)").append(HasNumber(slot) ? std::to_string(std::get<1>(slot)) : "null").append("}");
    separator = ",";
  }
  out += ']';
}

void AppendTextMember(std::string& out, std::string_view key, std::string_view text) {
  if (text.empty()) {
    out.append(",\"").append(key).append("\":null");
  } else {
    AppendMember(out, key, text);
  }
}

}  // namespace vifanalysis
