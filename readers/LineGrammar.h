// What a line of a text VIF may look like.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace vif {

struct SplitLine {
  std::string_view content;
  std::string_view comment;
};

/// Takes a line apart into its content and its trailing comment, both parts of the line and without blanks
/// around them. Both are empty for a blank line and for a line that is all comment.
SplitLine SplitContentAndComment(std::string_view line);

/// The line without the blanks (space, tab, CR, LF) at both ends.
std::string_view TrimBlanks(std::string_view line);

/// A line's content, recognised. Both texts are parts of the content.
struct Declaration {
  bool isString;           // $Name: "value", as opposed to Name: number
  std::string_view name;   // of a string declaration with its "$"
  std::string_view value;  // of a string declaration without its quotes
};

/// The two line patterns of the format, which are, without regard to letter case,
///
///     ^(\$[[:alnum:]_']+)\s*:\s*"(.*)"$
///     ^([[:alnum:]_']+)\s*:\s*(0x[[:xdigit:]]+|[[:digit:]]+|YES|NO)$
///
/// matched by plain code. The character classes and the letter case are those of the global locale at the time
/// the grammar is made, as they would be for a regular expression compiled then. Only a locale that no system has
/// would make a difference: one in which ":" or the double quote is a letter, a digit or white space or the other
/// letter case of one, or in which a character is both white space and a digit.
class CLineGrammar {
 public:
  CLineGrammar();

  /// Recognises a line's content, of which everything from a NUL on is left out; nothing when neither pattern
  /// fits. The content's first character decides which of the two is tried.
  std::optional<Declaration> Parse(std::string_view content) const;

 private:
  struct CharacterTraits {
    bool isName;
    bool isSpace;
    bool isDigit;
    bool isHexDigit;
    char lowerCase;
  };

  const CharacterTraits& Of(char c) const { return m_characters[static_cast<unsigned char>(c)]; }
  bool Same(char a, char b) const { return Of(a).lowerCase == Of(b).lowerCase; }
  bool EqualsWord(std::string_view text, std::string_view word) const;
  bool IsNumericValue(std::string_view text) const;
  bool IsQuotedValue(std::string_view text) const;

  std::array<CharacterTraits, 256> m_characters;
};

}  // namespace vif
