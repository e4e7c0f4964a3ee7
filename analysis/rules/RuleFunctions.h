// The functions of the rules, each in a file of its own, named after it. The rule table says what they look for.
#pragma once

#include "rules/Reporter.h"
#include "rules/VifView.h"

namespace vifanalysis {

// Values and their texts.
void CheckUnanswered(const CVifView& file, CReporter& reporter);
void CheckTextAgainstValue(const CVifView& file, CReporter& reporter);
void CheckValueOutOfRange(const CVifView& file, CReporter& reporter);

// PDO lists.
void CheckFirstPdoNot5V(const CComponentView& component, CReporter& reporter);
void CheckPdoLimits(const CComponentView& component, CReporter& reporter);
void CheckPdoFieldsForType(const CComponentView& component, CReporter& reporter);
void CheckPdoOrder(const CComponentView& component, CReporter& reporter);

// Power ratings.
void CheckPdoAboveRating(const CComponentView& component, CReporter& reporter);
void CheckRatingAbovePdos(const CComponentView& component, CReporter& reporter);
void CheckPowerRules(const CComponentView& component, CReporter& reporter);
void CheckOcpBelowRating(const CComponentView& component, CReporter& reporter);
void CheckProductPower(const CVifView& file, CReporter& reporter);
void CheckEprConsistency(const CComponentView& component, CReporter& reporter);
void CheckAssuredSum(const CVifView& file, CReporter& reporter);

// Power and Type-C roles.
void CheckRoleMismatch(const CComponentView& component, CReporter& reporter);
void CheckRoleIncomplete(const CComponentView& component, CReporter& reporter);
void CheckFrSwapCurrent(const CComponentView& component, CReporter& reporter);
void CheckSwapAgainstRole(const CComponentView& component, CReporter& reporter);
void CheckRoleLeftover(const CComponentView& component, CReporter& reporter);

// Data roles.
void CheckDrSwapRequired(const CComponentView& component, CReporter& reporter);
void CheckDataRoleContradiction(const CComponentView& component, CReporter& reporter);
void CheckCommsRole(const CComponentView& component, CReporter& reporter);

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

// Battery, supply, BC 1.2.
void CheckBatteryCount(const CComponentView& component, CReporter& reporter);
void CheckPowerSourceRole(const CComponentView& component, CReporter& reporter);
void CheckBc12Role(const CComponentView& component, CReporter& reporter);

// Ports of one product.
void CheckPortsDisagree(const CVifView& file, CReporter& reporter);
void CheckPortsDiffer(const CVifView& file, CReporter& reporter);

// USB4.
void CheckUsb4Needs(const CComponentView& component, CReporter& reporter);
void CheckUsb4Router(const CVifView& file, CReporter& reporter);
void CheckEnterUsbWithoutUsb4(const CComponentView& component, CReporter& reporter);

// Kind of product.
void CheckCaptivePlug(const CComponentView& component, CReporter& reporter);
void CheckCableAndPort(const CVifView& file, CReporter& reporter);

// VCONN and cable.
void CheckVconnSourceNeeded(const CComponentView& component, CReporter& reporter);
void CheckOver3AUnasked(const CComponentView& component, CReporter& reporter);

// Notes.
void CheckIgnoredFields(const CVifView& file, CReporter& reporter);
void CheckPlaceholder(const CVifView& file, CReporter& reporter);

}  // namespace vifanalysis
