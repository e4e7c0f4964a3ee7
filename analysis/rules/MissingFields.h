// Fields that a file does not have.
#pragma once

#include "rules/VifView.h"

#include <span>
#include <string>
#include <string_view>

namespace vifanalysis {

/// Whether a component lacks a field that files of its edition have. Older files may have it by another name.
bool IsMissing(const CComponentView& component, std::string_view name);

/// "A is missing", "A and B are missing".
std::string AreMissing(std::span<const std::string_view> names);

}  // namespace vifanalysis
