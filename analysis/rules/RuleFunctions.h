// The functions of the rules, each in a file of its own that is named for it. The table says what they look for.
#pragma once

#include "rules/Reporter.h"
#include "rules/VifView.h"

namespace vifanalysis {

// Values and their texts.
void CheckUnanswered(const CVifView& file, CReporter& reporter);
void CheckTextAgainstValue(const CVifView& file, CReporter& reporter);
void CheckValueOutOfRange(const CVifView& file, CReporter& reporter);

// PDO lists.

// Power ratings.
void CheckPdoAboveRating(const CComponentView& component, CReporter& reporter);

// Power and Type-C roles.
void CheckRoleMismatch(const CComponentView& component, CReporter& reporter);
void CheckRoleIncomplete(const CComponentView& component, CReporter& reporter);
void CheckFrSwapCurrent(const CComponentView& component, CReporter& reporter);
void CheckSwapAgainstRole(const CComponentView& component, CReporter& reporter);
void CheckRoleLeftover(const CComponentView& component, CReporter& reporter);

// Data roles.
void CheckDrSwapRequired(const CComponentView& component, CReporter& reporter);
void CheckCommsRole(const CComponentView& component, CReporter& reporter);
void CheckDataRoleContradiction(const CComponentView& component, CReporter& reporter);

// Alternate modes.

// Discover Identity and announced details.

// PD revision.

// Ports of one product.

// Battery, supply, BC 1.2.

// USB4.

// Kind of product.

// VCONN and cable.
void CheckVconnSourceNeeded(const CComponentView& component, CReporter& reporter);
void CheckOver3AUnasked(const CComponentView& component, CReporter& reporter);

// Notes.

}  // namespace vifanalysis
