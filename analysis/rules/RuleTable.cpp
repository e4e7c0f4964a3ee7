#include "rules/Rule.h"
#include "rules/RuleFunctions.h"

namespace vifanalysis {

namespace {

constexpr Edition kEvery = {};

// A rule that keeps silent about what another one has found comes after it.
constexpr Rule kRules[] = {
    // Values and their texts.
    {{"unanswered", Severity::Error, kEvery, Confidence::High, "S8", "a field that is still the editor's \"<select>\"",
      "The editor that wrote the file has offered a choice that nobody has made. The field has a number all the same, "
      "which stands for no answer. Choose the value that holds for the product."},
     CheckUnanswered},
    {{"text-against-value", Severity::Error, kEvery, Confidence::High, "S1, S5",
      "a value and a text that say different things",
      "Beside the value stands what it amounts to, such as \"9000 mV\" beside 180. Only the value counts, so a text "
      "that says something else leads readers astray, or shows that the value was meant to be another. Correct "
      "whichever is wrong."},
     CheckTextAgainstValue},
    {{"value-out-of-range", Severity::Error, kEvery, Confidence::High, "S1, S2, S3, S5",
      "a number that is greater than the field can be",
      "The number is beyond the last of the field's values, or has more bits than the product can announce: 10 for "
      "a voltage, current or power in a PDO, 16 for a vendor or product ID and an SVID, 32 for an XID and the bits "
      "of a mode. Check for a digit too many, and for a number in another unit than the field's."},
     CheckValueOutOfRange},

    // PDO lists.

    // Power ratings.
    {{"pdo-above-rating", Severity::Error, kEvery, Confidence::High, "S1, S8, S13",
      "a PDO of more power than the port's rating",
      "PD_Power_As_Source and PD_Power_As_Sink are the power of the greatest PDO of their side, so none can be of "
      "more. "
      "Correct the rating, or the voltage, current or power of the PDO. An augmented PDO may exceed the rating: its "
      "limits of voltage and current do not hold at once."},
     CheckPdoAboveRating},

    // Power and Type-C roles.
    {{"role-mismatch", Severity::Error, kEvery, Confidence::High, "S1, S8, S9",
      "a PD role and a Type-C state machine that do not go together",
      "PD_Port_Type and Type_C_State_Machine follow from one and the same role: a consumer starts as a sink, a "
      "provider as a source, and a DRP as either. Correct the one that is not what the port is."},
     CheckRoleMismatch},
    {{"role-incomplete", Severity::Error, Edition{2, 0}, Confidence::High, "S1, S4",
      "a role whose source or sink side is not declared",
      "A port that can be a source has source PDOs, of which the first is at 5 V, and a PD_Power_As_Source; a port "
      "that can be a sink has sink PDOs and a PD_Power_As_Sink. Add what is missing, or correct PD_Port_Type."},
     CheckRoleIncomplete},
    {{"fr-swap-current", Severity::Error, Edition{3, 0}, Confidence::High, "S1, S3",
      "a fast role swap without its current, or a current without the swap",
      "FR_Swap_Type_C_Current_Capability_As_Initial_Sink says with which current the port can take over as source. "
      "It is 0 just when FR_Swap_Supported_As_Initial_Sink is NO. Correct the one that is wrong."},
     CheckFrSwapCurrent},
    {{"swap-against-role", Severity::Error, kEvery, Confidence::High, "S1, S17, S18",
      "a swap or a preference that the port's role does not allow",
      "Only a port with both power roles can swap them, and only a DRP state machine can prefer one of them, with "
      "Type_C_Implements_Try_SRC or Type_C_Implements_Try_SNK; these exclude one another. Say NO in the field, or "
      "correct PD_Port_Type or Type_C_State_Machine."},
     CheckSwapAgainstRole},
    {{"role-leftover", Severity::Warning, kEvery, Confidence::Medium, "S1",
      "PDOs or a power of a side that the port does not have",
      "A Consumer Only port has no source PDOs, a Provider Only port has no sink PDOs, and a port without USB PD "
      "has neither. What the file says of them is probably left from another product. Remove the PDOs, their number"
      " and PD_Power_As_Source or PD_Power_As_Sink, or correct PD_Port_Type or USB_PD_Support."},
     CheckRoleLeftover},

    // Data roles.
    {{"dr-swap-required", Severity::Error, Edition{2, 0}, Confidence::High, "S1",
      "a port that must be able to swap its data role, but says that it does not",
      "A port can begin in a data role that it has no use for: a source begins as DFP, a sink as UFP, and a DRP as "
      "either. DR_Swap_To_DFP_Supported and DR_Swap_To_UFP_Supported must then be YES, so that it reaches the role "
      "in which it works. Correct them, or the fields that say how the port can act."},
     CheckDrSwapRequired},
    {{"comms-role", Severity::Warning, kEvery, Confidence::High, "S9",
      "USB communication without a data role, or a data role without USB communication",
      "USB_Comms_Capable says whether the port can be enumerated as a device or enumerate others as a host, so it "
      "is YES just when Type_C_Can_Act_As_Host or Type_C_Can_Act_As_Device is. A port of a hub may be neither."},
     CheckCommsRole},
    {{"data-role-contradiction", Severity::Error, kEvery, Confidence::High, "S1, S8",
      "fields about one data role that contradict each other",
      "What the port announces in Data_Capable_As_USB_Host_SOP and Data_Capable_As_USB_Device_SOP is what "
      "Type_C_Can_Act_As_Host and Type_C_Can_Act_As_Device say. Without the role, Host_Supports_USB_Data and "
      "Device_Supports_USB_Data are NO, and Is_DFP_On_Hub is NO for a port that is not on a hub. Correct the field "
      "that does not describe the product."},
     CheckDataRoleContradiction},

    // Alternate modes.

    // Discover Identity and announced details.

    // PD revision.

    // Ports of one product.

    // Battery, supply, BC 1.2.

    // USB4.

    // Kind of product.

    // VCONN and cable.
    {{"vconn-source-needed", Severity::Warning, kEvery, Confidence::Medium, "S8",
      "what a port can do only as the source of VCONN",
      "A cable answers only when it gets VCONN, so a port that speaks to it over SOP' or SOP'', or that swaps "
      "VCONN, sources it. SOP_PP_Capable goes with SOP_P_Capable. Say YES in Type_C_Sources_VCONN, or NO in "
      "VCONN_Swap_To_On_Supported, VCONN_Swap_To_Off_Supported, SOP_P_Capable and SOP_PP_Capable."},
     CheckVconnSourceNeeded},
    {{"over-3a-unasked", Severity::Warning, kEvery, Confidence::Medium, "S10, S19",
      "more than 3 A from a port that cannot ask what the cable carries",
      "Every cable carries 3 A. A source that offers more must learn from the cable's eMarker that it carries more,"
      " for which it needs VCONN and SOP', unless its cable is captive. Lower the current, or correct "
      "SOP_P_Capable, Type_C_Sources_VCONN or Captive_Cable."},
     CheckOver3AUnasked},

    // Notes.
};

}  // namespace

std::span<const Rule> ConsistencyRules() { return kRules; }

}  // namespace vifanalysis
