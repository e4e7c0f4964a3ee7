// The grammar of one line of a text VIF.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace vif {

struct SplitLine {
  std::string_view content;
  std::string_view comment;
};

/// Splits a line into its content and its trailing comment. Both are views into the line with surrounding blanks
/// trimmed, and both are empty for a blank line or a line that is all comment.
SplitLine SplitContentAndComment(std::string_view line);

/// The line without the blanks (space, tab, CR, LF) at both ends.
std::string_view TrimBlanks(std::string_view line);

/// A parsed line. The texts are views into its content.
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
/// matched by plain code. Character classes and letter case are those of the global locale when the grammar is
/// constructed, just as for a regular expression compiled then. Only a locale that no system has would tell the two
/// apart: one in which ":" or the double quote is a letter, a digit, white space or the other case of one, or in
/// which some character is both white space and a digit.
class CLineGrammar {
 public:
  CLineGrammar();

  /// Parses a line's content up to its first NUL; nothing when neither pattern matches. The first character decides
  /// which of the two is tried.
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
