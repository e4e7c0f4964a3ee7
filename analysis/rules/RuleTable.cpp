#include "rules/Rule.h"
#include "rules/RuleFunctions.h"

namespace vifanalysis {

namespace {

constexpr Edition kEvery = {};

// A rule that is silent about what another one has found comes after it.
constexpr Rule kRules[] = {
    // Values and their texts.
    {{"unanswered", Severity::Error, kEvery, Confidence::High, "R8", "a field that is still the editor's \"<select>\"",
      "The editor that wrote the file offered a choice that nobody made. The field has a number all the same, which "
      "stands for no answer. Choose the value that holds for the product."},
     ValueCheck{CheckUnanswered}},
    {{"text-against-value", Severity::Error, kEvery, Confidence::High, "R1 R5",
      "a value and a text that say different things",
      "Beside the value is a text that says what it stands for, such as \"9000 mV\" beside 180. Only the value counts, "
      "so a text that says something else leads readers astray, or shows that the value was meant to be another. "
      "Correct whichever is wrong."},
     ValueCheck{CheckTextAgainstValue}},
    {{"value-out-of-range", Severity::Error, kEvery, Confidence::High, "R1 R2 R3 R5",
      "a number greater than the field allows",
      "The number is beyond the last of the field's values, or has more bits than the product can announce: 10 for a "
      "voltage, current or power in a PDO, 16 for a vendor or product ID and an SVID, 32 for an XID and the bits of a "
      "mode. Check for a digit too many and for a number in the wrong unit."},
     ValueCheck{CheckValueOutOfRange}},

    // PDO lists.
    {{"first-pdo-not-5v", Severity::Error, kEvery, Confidence::High, "R3 R4",
      "a list of PDOs that does not begin with a fixed supply at 5 V",
      "Every port starts at 5 V, so the first PDO of each list is a fixed supply (Src_PDO_Supply_Type or "
      "Snk_PDO_Supply_Type 0) of that voltage (Src_PDO_Voltage or Snk_PDO_Voltage 100, in units of 50 mV). Put the "
      "PDO of 5 V first, or correct its type or voltage."},
     CheckFirstPdoNot5V},
    {{"pdo-limits", Severity::Error, kEvery, Confidence::High, "R3 R10 R14",
      "more PDOs than USB PD allows, or one with a current or voltage that it does not allow",
      "A port has at most 7 PDOs of a side, or 11 with the extended power range (EPR). No PDO has more than 5 A, and "
      "each source PDO offers some current. A fixed PDO has 5 V to 20 V, any other at most 21 V, unless "
      "EPR_Supported_As_Src or EPR_Supported_As_Snk is YES for its side, and no range of voltages ends below its "
      "start. Correct the PDO, or declare EPR."},
     CheckPdoLimits},
    {{"pdo-fields-for-type", Severity::Warning, kEvery, Confidence::High, "R1 R13",
      "a PDO without a field that its kind needs, or with one of another kind",
      "A fixed PDO has one voltage and a current; a battery PDO has a lowest and a highest voltage and a power; a "
      "variable or programmable PDO has a lowest and a highest voltage and a current. Nothing can be read from a PDO "
      "without Src_PDO_Supply_Type or Snk_PDO_Supply_Type. Add what is missing and remove what is not of that kind, "
      "or correct the type."},
     CheckPdoFieldsForType},
    {{"pdo-order", Severity::Error, kEvery, Confidence::High, "R3 R4", "PDOs that are not in order or repeat others",
      "A list has its fixed PDOs first, then those for batteries, then variable and then augmented ones; fixed PDOs "
      "above 20 V come after all others of up to 20 V. PDOs of one kind are in rising order of their voltage: fixed "
      "ones of their only one, battery and variable ones of their lowest, programmable ones of their highest. No PDO "
      "repeats another. Sort the list, or correct the number that is out of order."},
     CheckPdoOrder},

    // Power ratings.
    {{"pdo-above-rating", Severity::Error, kEvery, Confidence::High, "R1 R8 R13",
      "a PDO of more power than the port's rating",
      "PD_Power_As_Source and PD_Power_As_Sink are the power of the greatest PDO of their side, so none can be of "
      "more. Correct the rating, or the voltage, current or power of the PDO. An augmented PDO may exceed the rating: "
      "its limits of voltage and current do not hold at once."},
     CheckPdoAboveRating},
    {{"rating-above-pdos", Severity::Warning, kEvery, Confidence::Medium, "R1 R8 R13",
      "a rating above the power of every PDO of that side",
      "PD_Power_As_Source and PD_Power_As_Sink are the power of the greatest PDO of their side, so one PDO must be of "
      "that power. Correct the rating, or add the PDO that is missing. Not checked while the power of a PDO is not "
      "known."},
     CheckRatingAbovePdos},
    {{"power-rules", Severity::Warning, kEvery, Confidence::High, "R10",
      "a source without the fixed PDOs that its power requires",
      "Under PD revision 3, a source of more than 15 W offers 5 V and 9 V, of more than 27 W also 15 V, and of more "
      "than 45 W also 20 V, each with 3 A or with all of its power. Otherwise a sink that counts on these voltages "
      "gets less than PD_Power_As_Source promises. Add the PDO, raise its current, or correct the rating."},
     CheckPowerRules},
    {{"ocp-below-rating",
      Severity::Error,
      {1, 34},
      Confidence::High,
      "C",
      "over-current protection that acts below the current of the PDO",
      "The source would switch off while a sink draws no more than the PDO offers. Src_PD_OCP_OC_Threshold is in units "
      "of 10 mA; correct it, or Src_PDO_Max_Current. A threshold equal to the current is usual."},
     CheckOcpBelowRating},
    {{"product-power",
      Severity::Error,
      {2, 0},
      Confidence::Medium,
      "R1 R15",
      "powers of ports, gangs and the product that contradict each other",
      "Product_Total_Source_Power_mW is the power of the whole product, so all components say the same and no port "
      "(PD_Power_As_Source) or gang of ports (Port_Source_Power_Gang_Max_Power) has more. A port that shares its power "
      "(Port_Source_Power_Type 1) names its gang (Port_Source_Power_Gang) and the gang's power, which is the same for "
      "all of its ports and at least that of each. Correct the power that is wrong."},
     CheckProductPower},
    {{"epr-consistency",
      Severity::Error,
      {3, 15},
      Confidence::Medium,
      "R8 R20",
      "an extended power range (EPR) that PDOs, rating or revision contradict",
      "EPR_Supported_As_Src and EPR_Supported_As_Snk are YES if the port has PDOs of the extended power range on that "
      "side: above 21 V, or adjustable (AVS). Only these give more than 100 W, and they came with PD revision 3.1 "
      "(PD_Spec_Revision_Major, PD_Spec_Revision_Minor). Correct the answer, or add the PDOs, or correct what "
      "contradicts it."},
     CheckEprConsistency},
    {{"assured-sum",
      Severity::Note,
      {2, 0},
      Confidence::Medium,
      "R15",
      "ports whose assured power adds up to more than the product has",
      "What a port with assured power (Port_Source_Power_Type 0) gives does not depend on the other ports, so the "
      "product must have the sum of what such ports give (PD_Power_As_Source) in Product_Total_Source_Power_mW. If the "
      "ports share power, say so; else check the total. Many files have this, and what exactly the total counts "
      "is not certain."},
     CheckAssuredSum},

    // Power and Type-C roles.
    {{"role-mismatch", Severity::Error, kEvery, Confidence::High, "R1 R8 R9",
      "a PD role and a Type-C state machine that do not go together",
      "PD_Port_Type and Type_C_State_Machine follow from one and the same role: a consumer starts as a sink, a "
      "provider as a source, and a DRP as either. Correct the one that is not what the port is."},
     CheckRoleMismatch},
    {{"role-incomplete", Severity::Error, Edition{2, 0}, Confidence::High, "R1 R4",
      "a role whose source or sink side is not declared",
      "A port that can be a source has source PDOs, of which the first is at 5 V, and a PD_Power_As_Source; a port "
      "that can be a sink has sink PDOs and a PD_Power_As_Sink. Add what is missing, or correct PD_Port_Type."},
     CheckRoleIncomplete},
    {{"fr-swap-current", Severity::Error, Edition{3, 0}, Confidence::High, "R1 R3",
      "a fast role swap without its current, or a current without the swap",
      "FR_Swap_Type_C_Current_Capability_As_Initial_Sink says with which current the port can take over as source. It "
      "is 0 exactly when FR_Swap_Supported_As_Initial_Sink is NO. Correct the one that is wrong."},
     CheckFrSwapCurrent},
    {{"swap-against-role", Severity::Error, kEvery, Confidence::High, "R1 R17 R18",
      "a swap or a preference that the port's role does not allow",
      "Only a port with both power roles can swap them, and only a DRP state machine can prefer one of them, with "
      "Type_C_Implements_Try_SRC or Type_C_Implements_Try_SNK; these exclude one another. Say NO in the field, or "
      "correct PD_Port_Type or Type_C_State_Machine."},
     CheckSwapAgainstRole},
    {{"role-leftover", Severity::Warning, kEvery, Confidence::Medium, "R1",
      "PDOs or a power rating of a side that the port does not have",
      "A Consumer Only port has no source PDOs, a Provider Only port has no sink PDOs, and a port without USB PD "
      "has neither. What the file says of them is probably left from another product. Remove the PDOs, their number"
      " and PD_Power_As_Source or PD_Power_As_Sink, or correct PD_Port_Type or USB_PD_Support."},
     CheckRoleLeftover},

    // Data roles.
    {{"dr-swap-required", Severity::Error, Edition{2, 0}, Confidence::High, "R1",
      "a port that must be able to swap its data role, but says that it does not",
      "A port can begin in a data role that it has no use for: a source begins as DFP, a sink as UFP, and a DRP as "
      "either. DR_Swap_To_DFP_Supported and DR_Swap_To_UFP_Supported must then be YES, so that it reaches the role "
      "in which it works. Correct them, or the fields that say how the port can act."},
     CheckDrSwapRequired},
    {{"data-role-contradiction", Severity::Error, kEvery, Confidence::High, "R1 R8",
      "fields about one data role that contradict each other",
      "What the port announces in Data_Capable_As_USB_Host_SOP and Data_Capable_As_USB_Device_SOP is what "
      "Type_C_Can_Act_As_Host and Type_C_Can_Act_As_Device say. Without the role, Host_Supports_USB_Data and "
      "Device_Supports_USB_Data are NO, and Is_DFP_On_Hub is NO for a port that is not on a hub. Correct the field "
      "that does not describe the product."},
     CheckDataRoleContradiction},
    {{"comms-role", Severity::Warning, kEvery, Confidence::High, "R9",
      "USB communication without a data role, or a data role without USB communication",
      "USB_Comms_Capable says whether the port can be enumerated as a device or enumerate others as a host, so it is "
      "YES exactly when Type_C_Can_Act_As_Host or Type_C_Can_Act_As_Device is. A port of a hub may be neither."},
     CheckCommsRole},

    // Alternate modes.
    {{"modal-svids", Severity::Error, kEvery, Confidence::High, "R3 R6",
      "SVIDs that do not agree with whether the port is modal, or with one another",
      "A port that claims modal operation (Modal_Operation_Supported_SOP) names at least one SVID when it is asked "
      "for them, and one that does not claim it names none. Each SVID_SOP stands for one vendor or standard and is "
      "listed once; 0 and 0xFF00, USB PD itself, have no modes. Where SVID_Fixed_SOP or SVID_Modes_Fixed_SOP is "
      "YES, the numbers never change, so Num_SVIDs_Min_SOP and Num_SVIDs_Max_SOP, or SVID_Num_Modes_Min_SOP and "
      "SVID_Num_Modes_Max_SOP, are equal."},
     CheckModalSvids},
    {{"alt-mode-role", Severity::Warning, Edition{1, 36}, Confidence::Medium, "R1 R2",
      "an alternate mode adapter or controller without what it needs",
      "An adapter (Type_C_Is_Alt_Mode_Adapter) is found by its answer to Discover Identity as a UFP, in which it "
      "claims modal operation: Responds_To_Discov_SOP_UFP and Modal_Operation_Supported_SOP are YES. A controller "
      "(Type_C_Is_Alt_Mode_Controller) finds adapters by asking them: Attempts_Discov_SOP is YES. Correct the field "
      "that does not hold for the product."},
     CheckAltModeRole},

    // Discover Identity and announced details.
    {{"details-missing", Severity::Warning, Edition{1, 34}, Confidence::High, "R1 R2 R8",
      "missing fields that another field announces",
      "Some fields say that there is more to say. A port that responds to Discover Identity declares what it "
      "answers: USB_VID_SOP, PID_SOP, bcdDevice_SOP, XID_SOP, Data_Capable_As_USB_Host_SOP, "
      "Data_Capable_As_USB_Device_SOP, Modal_Operation_Supported_SOP, the product type of each role in which it "
      "responds, and DFP_VDO_Port_Number if that type has one. The same holds for Manufacturer_Info_Supported_Port, "
      "BC_1_2_Support, Host_Supports_USB_Data, Device_Supports_USB_Data, PD_OC_Protection and PD_OCP_Method. Add "
      "the missing fields, or correct the one that announces them."},
     CheckDetailsMissing},
    {{"responds-in-impossible-role", Severity::Warning, Edition{1, 30}, Confidence::High, "R8",
      "a port that responds to Discover Identity in a data role that it never has",
      "A port with Type_C_State_Machine 1 (SNK) starts as a UFP, one with 0 (SRC) as a DFP. Unless "
      "DR_Swap_To_DFP_Supported or DR_Swap_To_UFP_Supported is YES, it keeps its role and cannot respond in the other "
      "role: Responds_To_Discov_SOP_DFP or Responds_To_Discov_SOP_UFP is NO."},
     CheckRespondsInImpossibleRole},
    {{"product-type-against-role", Severity::Warning, Edition{1, 36}, Confidence::Medium, "R2 R8",
      "a product type of a role that the port does not have",
      "Product_Type_UFP_SOP and Product_Type_DFP_SOP are what the port answers in that data role. A hub or a "
      "peripheral acts as a device, a hub or a host acts as a host, a power brick provides power, and a port that does "
      "not respond in a role has product type 0 there. Correct the type, or the field that it contradicts."},
     CheckProductTypeAgainstRole},
    {{"dfp-port-number", Severity::Warning, Edition{2, 0}, Confidence::Medium, "R2 R6",
      "a port number that does not fit into the DFP VDO, or that two ports share",
      "DFP_VDO_Port_Number tells the ports of a product apart. The DFP VDO has five bits for it, so it is 0 to 31 "
      "and different for each port."},
     CheckDfpPortNumber},

    // PD revision.
    {{"pd-revision-pair", Severity::Error, Edition{3, 0}, Confidence::High, "R1 R5",
      "two fields that name different revisions of USB PD",
      "PD_Specification_Revision is the code that PD messages carry: 1 is revision 2, and 2 is revision 3. "
      "PD_Spec_Revision_Major is the revision itself, so it is greater by one."},
     CheckPdRevisionPair},
    {{"pd3-feature-in-pd2", Severity::Error, kEvery, Confidence::High, "R1 R3 R7",
      "features of PD revision 3 in a port of revision 2",
      "Extended messages in chunks or unchunked, security messages, manufacturer info, fast role swap, Data_Reset, "
      "Enter_USB, EPR and augmented PDOs came with revision 3 of USB PD. Where PD_Specification_Revision is 1 "
      "(revision 2), the fields about them are NO and there are no augmented PDOs. Correct the revision or these "
      "fields."},
     CheckPd3FeatureInPd2},
    {{"pd-revision-unknown", Severity::Warning, Edition{3, 0}, Confidence::Medium, "R20",
      "a revision and version of USB PD that was never published",
      "PD_Spec_Revision_Major, PD_Spec_Revision_Minor, PD_Spec_Version_Major and PD_Spec_Version_Minor name one "
      "published specification, such as revision 3.1, version 1.8. Revisions after 3.2 are not known here and are "
      "accepted."},
     CheckPdRevisionUnknown},

    // Battery, supply, BC 1.2.
    {{"battery-count", Severity::Warning, Edition{1, 20}, Confidence::High, "R3 R8",
      "numbers of batteries that are too large, or that contradict whether there is a battery",
      "If Port_Battery_Powered is YES, there is a battery in Num_Fixed_Batteries or a slot in "
      "Num_Swappable_Battery_Slots; if it is NO, both are 0. USB PD can tell four fixed batteries and four slots "
      "apart."},
     CheckBatteryCount},
    {{"power-source-role", Severity::Warning, kEvery, Confidence::High, "R8",
      "a power source that the port cannot have",
      "Type_C_Power_Source says whether the product is powered over this port: 0 never, 1 always, 2 at times. A "
      "port that only provides power never is. A product that depends on the port for all its power is not "
      "unconstrained, so Unconstrained_Power is NO where Type_C_Power_Source is 1."},
     CheckPowerSourceRole},
    {{"bc12-role", Severity::Warning, kEvery, Confidence::Medium, "R16",
      "a BC 1.2 role that does not go with the Type-C role",
      "A BC 1.2 charging port provides power and a portable device takes it. So BC_1_2_Support is not 2 or 3 where "
      "Type_C_State_Machine is 1 (SNK), and not 1 or 3 where it is 0 (SRC). A charging port that also carries USB "
      "data is a CDP (BC_1_2_Charging_Port_Type 1) and needs a port that can act as host; without data it is a DCP "
      "(0)."},
     CheckBc12Role},

    // Ports of one product.
    {{"ports-disagree",
      Severity::Warning,
      {2, 0},
      Confidence::Medium,
      "C",
      "ports that say different things about one product",
      "The revision and version of USB PD (PD_Specification_Revision, PD_Spec_Revision_Major and so on), "
      "USB_VID_SOP, XID_SOP, Manufacturer_Info_VID_Port and the numbers of batteries are the same for all ports of "
      "a product. Correct the port that is out of date. Port_Label, on the other hand, tells the ports apart, so no"
      " two may have the same."},
     CheckPortsDisagree},
    {{"ports-differ",
      Severity::Note,
      {2, 0},
      Confidence::Low,
      "C",
      "ports of one kind that are almost alike",
      "Ports with the same role, state machine, connector and USB4 support usually agree in everything else. Where "
      "only a few fields differ, one port may have been forgotten in a change. Compare the two; the difference may "
      "well be meant."},
     CheckPortsDiffer},

    // USB4.
    {{"usb4-needs",
      Severity::Error,
      {3, 0},
      Confidence::Medium,
      "R1 R7",
      "a USB4 port without something that USB4 requires",
      "A port whose USB4_Supported is YES supports USB PD revision 3 (USB_PD_Support, PD_Specification_Revision), "
      "the Enter_USB message (Enter_USB_Supported) and USB communication (USB_Comms_Capable), has a Type-C "
      "connector (Connector_Type) and is a USB4 DFP or UFP (USB4_DFP_Supported, USB4_UFP_Supported). Off a hub, the"
      " former is a host (Type_C_Can_Act_As_Host) and the latter a device (Type_C_Can_Act_As_Device). Correct the "
      "field, or USB4_Supported."},
     CheckUsb4Needs},
    {{"usb4-router",
      Severity::Warning,
      {3, 0},
      Confidence::Medium,
      "R1",
      "a USB4 port whose router the product does not declare",
      "USB4_Router_Index is the USB4_Router_ID of the router that the port belongs to. Correct the index, or "
      "declare the router."},
     CheckUsb4Router},
    {{"enter-usb-without-usb4",
      Severity::Note,
      {3, 15},
      Confidence::Medium,
      "R7",
      "Enter_USB_Supported on a port without USB4",
      "The Enter_USB message is needed for USB4 alone. A port without USB4 may support it, but Enter_USB_Supported "
      "is easily left at YES by mistake. Set it to NO unless the port answers the message."},
     CheckEnterUsbWithoutUsb4},

    // Kind of product.
    {{"captive-plug",
      Severity::Error,
      {3, 0},
      Confidence::High,
      "R2 R9",
      "a captive cable with a receptacle, or a port without one that has a plug",
      "ID_Header_Connector_Type_SOP is 3 for a plug, which a product has at the end of a captive cable or on its "
      "own body, and 2 for a receptacle. A plug counts as a captive cable, so Captive_Cable and the type must "
      "agree."},
     CheckCaptivePlug},
    {{"cable-and-port",
      Severity::Warning,
      {2, 0},
      Confidence::Medium,
      "R1 R12",
      "fields that do not fit the kind of product",
      "VIF_Product_Type says whether the file is about a product with ports, a cable or a repeater. A port has no "
      "fields of a cable unless its captive cable has an eMarker (Captive_Cable_Is_eMarked), and a cable has no "
      "PDOs, no power rating and no role but eMarker (PD_Port_Type). Certification_Type 1 (Reference Platform) is "
      "not for cables, and repeaters have 2 (Silicon) only. Correct the type, or remove the fields."},
     CheckCableAndPort},

    // VCONN and cable.
    {{"vconn-source-needed", Severity::Warning, kEvery, Confidence::Medium, "R8",
      "a port that does what requires VCONN, but does not source it",
      "A cable answers only when it gets VCONN, so a port that speaks to it over SOP' or SOP'', or that swaps "
      "VCONN, sources it. SOP_PP_Capable goes with SOP_P_Capable. Say YES in Type_C_Sources_VCONN, or NO in "
      "VCONN_Swap_To_On_Supported, VCONN_Swap_To_Off_Supported, SOP_P_Capable and SOP_PP_Capable."},
     CheckVconnSourceNeeded},
    {{"over-3a-unasked", Severity::Warning, kEvery, Confidence::Medium, "R10 R19",
      "more than 3 A from a port that cannot ask what the cable carries",
      "Every cable carries 3 A. A source that offers more must learn from the cable's eMarker that it carries more,"
      " for which it needs VCONN and SOP', unless its cable is captive. Lower the current, or correct "
      "SOP_P_Capable, Type_C_Sources_VCONN or Captive_Cable."},
     CheckOver3AUnasked},

    // Notes.
    {{"ignored-fields",
      Severity::Note,
      {3, 0},
      Confidence::High,
      "R1",
      "fields that nothing reads, because another one is NO",
      "Some fields count only if another one is YES: those of USB4 if USB4_Supported is, those of over-current "
      "protection if PD_OC_Protection is, and so on. They do no harm, but may hide that the other field is wrong. "
      "Remove them, or correct the other field."},
     CheckIgnoredFields},
    {{"placeholder", Severity::Note, kEvery, Confidence::High, "R1 R12", "a value that looks like a placeholder",
      "Editors and templates fill Vendor_Name, Model_Part_Number, Product_Revision, TID and the vendor and product "
      "IDs (such as USB_VID_SOP and PID_SOP) with texts such as FIX-ME and with numbers such as 0xFFFF. Replace "
      "them before the file is handed in. The USB-IF provides the TID."},
     CheckPlaceholder},
};

}  // namespace

std::span<const Rule> ConsistencyRules() { return kRules; }

}  // namespace vifanalysis
