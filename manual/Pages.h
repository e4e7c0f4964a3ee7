// Manual pages and completion scripts, made from templates.
#pragma once

#include "Commands.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace manual {

/// What pages are made from, besides the tables of the analysis.
struct PageSources {
  std::string version;                          ///< "1.2.3"
  std::string date;                             ///< "March 4, 2025"
  std::string header;                           ///< the content of vif.h
  std::map<std::string, std::string> examples;  ///< a message of a finding, by its code
};

/// Fills in templates. A line `@NAME ARGUMENT...` of a template is replaced by what that directive makes; the lines
/// between `@transcript` and `@end` are shown as they are. All other lines stay.
class CPages {
 public:
  explicit CPages(PageSources sources);

  /// \throws std::runtime_error for a directive that does not exist or cannot be followed
  std::string Fill(std::string_view page);

  /// To be called after all pages have been made.
  /// \throws std::runtime_error if one of them neither has nor leaves out a section of the help of a command
  void RequireAllHelpUsed() const;

 private:
  std::string Follow(const std::vector<std::string>& directive);
  std::string Head(const std::string& title, const std::string& section) const;
  const std::string& Message(const std::string& code) const;
  const Command& Find(const std::string& name) const;
  void Use(const std::string& command, const std::string& section);

  PageSources m_sources;
  std::vector<Command> m_commands;
  std::set<std::pair<std::string, std::string>> m_used;  // a command and a title of a section of its help
};

}  // namespace manual
