// What a handle of differences holds.
#pragma once

#include "Handle.h"
#include "vif.h"

#include <analysis/Differences.h>

/// Whose differences they are.
enum class Owner { Caller, Ports };

struct vif_differences : vifc::CHandle<vifc::HandleKind::Differences> {
  /// \param found whose texts may have bytes that are not UTF-8
  vif_differences(vifanalysis::Differences found, Owner whose);

  const vifanalysis::Differences content;
  const Owner owner;
};

namespace vifc {

/// \throws CFailure
vifanalysis::CompareOptions CompareOptionsOf(const vif_compare_options* given);

}  // namespace vifc
