// The namespace prefixes in scope at a place in a document.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace msxml6 {

/// Checks that the prefix of every name is declared, which not every MSXML does. Texts are borrowed.
class CPrefixScope {
 public:
  /// Enters an element; the attributes that follow belong to it.
  void Enter(std::string_view name);

  void TakeAttribute(std::string_view name, std::string_view value);

  /// Call it after the last attribute.
  /// \return what is wrong with the names of the element and its attributes; empty when nothing is
  std::string Check() const;

  /// Leaves the element entered last.
  void Leave();

  /// The number of declarations in scope, including those of the default namespace.
  std::size_t Count() const { return m_declared.size(); }

 private:
  struct Declaration {
    std::string_view prefix;  // empty for the default namespace
    std::string_view uri;
  };

  std::string CheckName(std::string_view name) const;
  bool IsDeclared(std::string_view prefix) const;

  std::vector<Declaration> m_declared;
  std::vector<std::size_t> m_before;      // for each open element, the number of declarations outside it
  std::vector<std::string_view> m_names;  // of the element entered last and its prefixed attributes
};

}  // namespace msxml6
