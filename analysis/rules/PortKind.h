// What makes ports comparable.
#pragma once

#include "rules/VifView.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vifanalysis {

/// PD role, Type-C state machine, connector and USB4 support.
using PortKind = std::array<std::uint64_t, 4>;

/// The kind of a port; nothing when the file does not say it.
std::optional<PortKind> PortKindOf(const CComponentView& component);

/// Whether the field may differ from port to port.
bool IsAPortsOwn(std::string_view name);

}  // namespace vifanalysis
