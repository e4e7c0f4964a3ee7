// What a handle of a text holds.
#pragma once

#include "Handle.h"
#include "vif.h"

#include <string>

struct vif_text : vifc::CHandle<vifc::HandleKind::Text> {
  explicit vif_text(std::string content) : text(std::move(content)) {}

  const std::string text;
};
