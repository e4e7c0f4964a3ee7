// The checks of the suite.
#pragma once

#include <VendorInfoFile.h>

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace suite {

/// What a check found.
struct Verdict {
  std::size_t examined = 0;           ///< how many items there were to check; if none, the check does not apply
  std::vector<std::string> failures;  ///< what is wrong, and where
};

struct Check {
  const char* title;
  const char* examines;  ///< what it checks, in the plural
  Verdict (*run)(const CVendorInfoFile& vif);
};

/// All checks, in the order in which they run. A new one is a function declared below and a row in Checks.cpp.
std::span<const Check> AllChecks();

/// Each PDO declares what its kind of supply needs, in numbers that fit in the PDO.
Verdict CheckSourcePdos(const CVendorInfoFile& vif);
Verdict CheckSinkPdos(const CVendorInfoFile& vif);

/// Each component has as many PDOs as it declares.
Verdict CheckSourcePdoCounts(const CVendorInfoFile& vif);
Verdict CheckSinkPdoCounts(const CVendorInfoFile& vif);

/// Each USB4 router has as many PCIe endpoints as it declares.
Verdict CheckEndpointCounts(const CVendorInfoFile& vif);

/// The router that a component says it belongs to exists.
Verdict CheckRouterIndexes(const CVendorInfoFile& vif);

/// A component that supports modal operation declares a mode.
Verdict CheckModes(const CVendorInfoFile& vif);

}  // namespace suite
