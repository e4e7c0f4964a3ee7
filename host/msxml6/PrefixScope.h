// The prefixes of namespaces that are in force at a place of a document.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace msxml6 {

/// Checks that every name's prefix is declared, which not every MSXML does. Texts are borrowed.
class CPrefixScope {
 public:
  /// Enters an element: the attributes that follow are its own.
  void Enter(std::string_view name);

  void TakeAttribute(std::string_view name, std::string_view value);

  /// To be called behind the attributes.
  /// \return why the names of the element and its attributes are not right; empty when they are
  std::string Check() const;

  /// Leaves the element entered last.
  void Leave();

  /// The number of declarations in force, those of no prefix included.
  std::size_t Count() const { return m_declared.size(); }

 private:
  struct Declaration {
    std::string_view prefix;  // empty for the default namespace
    std::string_view uri;
  };

  std::string CheckName(std::string_view name) const;
  bool IsDeclared(std::string_view prefix) const;

  std::vector<Declaration> m_declared;
  std::vector<std::size_t> m_before;      // for each element around: how many there were outside it
  std::vector<std::string_view> m_names;  // of the element entered last and of its attributes with prefixes
};

}  // namespace msxml6
