// Takes vif.h apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace manual {

/// A line of the body of a structure or an enumeration.
struct HeaderMember {
  std::string declaration;  ///< "const char* name", "VIF_OK = 0"
  std::string comment;
};

/// A comment that begins a part, or a declaration with its comment.
struct HeaderItem {
  enum class Kind { Part, Function, Structure, Handle, Constants, Type };

  Kind kind = Kind::Part;
  std::string name;                   ///< of what is declared; of a part its title
  std::string declaration;            ///< on one line, without the members
  std::vector<std::string> comment;   ///< paragraphs; one that begins with a blank is code
  std::vector<HeaderMember> members;  ///< of a structure or an enumeration
};

/// The first comment, by paragraphs; code begins with a blank.
std::vector<std::string> ReadIntroduction(std::string_view header);

/// Everything between the braces of `extern "C"`.
/// \throws std::runtime_error for what it does not understand
std::vector<HeaderItem> ReadItems(std::string_view header);

}  // namespace manual
