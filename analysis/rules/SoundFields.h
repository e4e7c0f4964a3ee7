// Fields as parts of the sentences of rules, and questions that several rules ask of them.
#pragma once

#include "rules/Reporter.h"
#include "rules/VifView.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// What a field says: "PD_Port_Type is 3 (Provider Only)", "Captive_Cable is YES", "PID_SOP is missing".
std::string Says(const CGroupView& group, std::string_view name);

/// "A", "A and B", or "A, B and C".
std::string Listed(const std::vector<std::string_view>& names);

/// A list of what is missing: "A is missing", "A and B are missing".
std::string AreMissing(const std::vector<std::string_view>& names);

/// The field's number, unless a rule further up the table has found the field unanswered or its number out of range:
/// relying on such a number would give one mistake a second finding.
std::optional<std::uint64_t> SoundNumber(const CGroupView& group, std::string_view name, const CReporter& reporter);

/// Whether a component lacks a field that files of its edition have. Older files may have it by another name.
bool IsMissing(const CComponentView& component, std::string_view name);

/// PD_Port_Type; nothing when the port does not support PD.
std::optional<std::uint64_t> PdRole(const CComponentView& component);

}  // namespace vifanalysis
