// The functions of the rules, each in a file of its own that is named for it. The table says what they look for.
#pragma once

#include "rules/Reporter.h"
#include "rules/VifView.h"

namespace vifanalysis {

// Values and their texts.
void CheckUnanswered(const CVifView& file, CReporter& reporter);

// PDO lists.

// Power ratings.
void CheckPdoAboveRating(const CComponentView& component, CReporter& reporter);

// Power and Type-C roles.

// Data roles.

// Alternate modes.
void CheckModalSvids(const CComponentView& component, CReporter& reporter);
void CheckAltModeRole(const CComponentView& component, CReporter& reporter);

// Discover Identity and announced details.
void CheckDetailsMissing(const CComponentView& component, CReporter& reporter);
void CheckRespondsInImpossibleRole(const CComponentView& component, CReporter& reporter);
void CheckProductTypeAgainstRole(const CComponentView& component, CReporter& reporter);
void CheckDfpPortNumber(const CVifView& file, CReporter& reporter);

// PD revision.
void CheckPdRevisionPair(const CComponentView& component, CReporter& reporter);
void CheckPd3FeatureInPd2(const CComponentView& component, CReporter& reporter);
void CheckPdRevisionUnknown(const CComponentView& component, CReporter& reporter);

// Ports of one product.

// Battery, supply, BC 1.2.
void CheckBatteryCount(const CComponentView& component, CReporter& reporter);
void CheckPowerSourceRole(const CComponentView& component, CReporter& reporter);
void CheckBc12Role(const CComponentView& component, CReporter& reporter);

// USB4.

// Kind of product.

// VCONN and cable.

// Notes.

}  // namespace vifanalysis
