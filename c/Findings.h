// What a handle of findings holds.
#pragma once

#include "Handle.h"
#include "vif.h"

#include <analysis/Finding.h>

#include <vector>

struct vif_findings : vifc::CHandle<vifc::HandleKind::Findings> {
  /// \param found whose texts may have bytes that are not UTF-8
  explicit vif_findings(std::vector<vifanalysis::Finding> found);

  const std::vector<vifanalysis::Finding> list;
};
