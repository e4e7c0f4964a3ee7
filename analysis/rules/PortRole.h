// What a port is by its roles.
#pragma once

#include "rules/Reporter.h"
#include "rules/VifView.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace vifanalysis {

/// The roles of a PD port, with the numbers of PD_Port_Type.
enum class PortRole : std::uint8_t { ConsumerOnly, ConsumerProvider, ProviderConsumer, ProviderOnly, Drp, EMarker };

/// The state machines of a Type-C port, with the numbers of Type_C_State_Machine.
enum class StateMachine : std::uint8_t { Source, Sink, Drp };

/// The port's role; nothing when it has none that is known, USB_PD_Support is NO, or the file is about a cable, which
/// has no role but eMarker.
std::optional<PortRole> RoleOf(const CComponentView& component);

/// The port's state machine; nothing when it has none that is known.
std::optional<StateMachine> StateMachineOf(const CComponentView& component);

// The same for rules after role-mismatch: nothing where it has found that the two contradict each other, because nobody
// knows then which of them is wrong.
std::optional<PortRole> SettledRole(const CComponentView& component, const CReporter& reporter);
std::optional<StateMachine> SettledStateMachine(const CComponentView& component, const CReporter& reporter);

/// Whether the component is a port that supports PD: it has a role that is known, and is not an eMarker.
bool IsPdPort(const CComponentView& component);

/// Whether the component is a cable, or the eMarker of one.
bool IsCable(const CComponentView& component);

/// What a port of that role is called: "Provider Only".
std::string_view RoleName(PortRole role);

}  // namespace vifanalysis
