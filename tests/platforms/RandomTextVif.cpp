#include "RandomTextVif.h"

#include "Choice.h"
#include "field/ReferenceNames.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace platforms {

namespace {

constexpr std::string_view kValues[] = {"0",
                                        "1",
                                        "100",
                                        "4294967295",
                                        "4294967296",
                                        "18446744073709551615",
                                        "18446744073709551616",
                                        "0x1A2B",
                                        "0X1a2b",
                                        "0x",
                                        "0x0000FFFF",
                                        "0xg",
                                        "017",
                                        "1e3",
                                        "-1",
                                        "+1",
                                        "YES",
                                        "NO",
                                        "true",
                                        "5 V",
                                        "\"\"",
                                        "\"quoted\"",
                                        "\"a \"b\"\"",
                                        "\"open",
                                        "",
                                        "\u00E4\u20AC",
                                        "\xE4",
                                        "\"\U0001F600\"",
                                        "1 2",
                                        "12abc",
                                        "0b101",
                                        "1.5",
                                        "\t7\t",
                                        "\"  blanks  \""};

constexpr std::string_view kComments[] = {
    "",     "",           ";",      "; 5 V",  "; \u00E4\u20AC",   ";; twice ; thrice",
    ";\t9", "; \xE4\xFF", "; a: b", "# none", "; Fixed Supply  ", " ;x"};

constexpr std::string_view kOddLines[] = {
    "",     "   ",       "; comment alone", "no colon",    ": no name", "::",     "a:",      " \t x : 1 ",
    "$VIF", "[section]", "\xEF\xBB\xBF",    "\"Name\": 1", "\r",        "A B: 1", "Name :1", "Name;: 1"};

std::string Name(std::mt19937_64& generator) {
  const auto& field = OneOf(kReferenceFields, generator);
  std::string name = reference::NameWith(OneOf(reference::Spellings(field), generator),
                                         OneOf(reference::kIndexes, generator), OneOf(reference::kIndexes, generator));
  return OneIn(10, generator) ? reference::Changed(name, generator) : name;
}

std::string Line(std::mt19937_64& generator) {
  if (OneIn(12, generator)) return std::string(OneOf(kOddLines, generator));
  const std::string blank = OneIn(4, generator) ? " " : "";
  const std::string separator = OneIn(8, generator) ? " : " : ": ";
  return blank + Name(generator) + separator + std::string(OneOf(kValues, generator)) +
         std::string(OneIn(3, generator) ? " " : "") + std::string(OneOf(kComments, generator));
}

}  // namespace

std::string RandomTextVif(std::mt19937_64& generator) {
  const std::string_view lineEnd = OneIn(2, generator) ? "\n" : "\r\n";
  std::string text = OneIn(20, generator) ? "\xEF\xBB\xBF" : "";
  const std::size_t count = testsupport::RandomBelow(generator, 60);
  for (std::size_t i = 0; i < count; ++i) text.append(Line(generator)).append(lineEnd);
  if (OneIn(5, generator)) text += Line(generator);  // a last line without a line end
  // The only character that is meant to make a difference: in text mode, Ctrl-Z ends a file on Windows.
  std::replace(text.begin(), text.end(), '\x1A', '\x1B');
  return text;
}

}  // namespace platforms
