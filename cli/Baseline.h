// Findings that are known from an earlier run.
#pragma once

#include "FindingWriters.h"

#include <set>
#include <string>

namespace cli {

/// What an earlier `vif check --format json` printed. Two findings are the same if code, element, message and the base
/// name of the file are. Line numbers do not count, not even in the message, and neither do folders, which differ from
/// machine to machine.
class CBaseline {
 public:
  /// \throws Failure when the file cannot be read or is not the output of `vif check --format json`
  explicit CBaseline(const std::string& fileName);

  /// Removes the findings that the earlier run had, too.
  void RemoveFrom(CheckedFile& file) const;

 private:
  std::set<std::string> m_known;
};

}  // namespace cli
