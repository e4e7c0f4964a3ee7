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

    // Data roles.

    // Alternate modes.
    {{"modal-svids", Severity::Error, kEvery, Confidence::High, "S3, S6",
      "SVIDs that do not agree with whether the port is modal, or with one another",
      "A port that claims modal operation (Modal_Operation_Supported_SOP) names at least one SVID when it is asked "
      "for them, and one that does not claim it names none. Each SVID_SOP stands for one vendor or standard and is "
      "listed once; 0 and 0xFF00, USB PD itself, have no modes. Where SVID_Fixed_SOP or SVID_Modes_Fixed_SOP is "
      "YES, the numbers never change, so Num_SVIDs_Min_SOP and Num_SVIDs_Max_SOP, or SVID_Num_Modes_Min_SOP and "
      "SVID_Num_Modes_Max_SOP, are equal."},
     CheckModalSvids},
    {{"alt-mode-role", Severity::Warning, Edition{1, 36}, Confidence::Medium, "S1, S2",
      "a port for alternate modes that lacks what they take",
      "An adapter (Type_C_Is_Alt_Mode_Adapter) is found by its answer to Discover Identity as a UFP, in which it "
      "claims modal operation: Responds_To_Discov_SOP_UFP and Modal_Operation_Supported_SOP are YES. A controller "
      "(Type_C_Is_Alt_Mode_Controller) finds adapters by asking them: Attempts_Discov_SOP is YES. Correct the field "
      "that does not hold for the product."},
     CheckAltModeRole},

    // Discover Identity and announced details.
    {{"details-missing", Severity::Warning, Edition{1, 34}, Confidence::High, "S1, S2, S8",
      "fields that are missing though another announces them",
      "Some fields say that there is more to say. A port that responds to Discover Identity declares what it "
      "answers: USB_VID_SOP, PID_SOP, bcdDevice_SOP, XID_SOP, Data_Capable_As_USB_Host_SOP, "
      "Data_Capable_As_USB_Device_SOP, Modal_Operation_Supported_SOP, the product type of each role in which it "
      "responds, and DFP_VDO_Port_Number if that type has one. The same holds for Manufacturer_Info_Supported_Port, "
      "BC_1_2_Support, Host_Supports_USB_Data, Device_Supports_USB_Data, PD_OC_Protection and PD_OCP_Method. Add "
      "the missing fields, or correct the one that announces them."},
     CheckDetailsMissing},
    {{"responds-in-impossible-role", Severity::Warning, Edition{1, 30}, Confidence::High, "S8",
      "a port that responds to Discover Identity in a data role that it never has",
      "A port with Type_C_State_Machine 1 (SNK) starts as a UFP, one with 0 (SRC) as a DFP. Unless "
      "DR_Swap_To_DFP_Supported or DR_Swap_To_UFP_Supported is YES, it stays so, and cannot respond in the other "
      "role: Responds_To_Discov_SOP_DFP or Responds_To_Discov_SOP_UFP is NO."},
     CheckRespondsInImpossibleRole},
    {{"product-type-against-role", Severity::Warning, Edition{1, 36}, Confidence::Medium, "S2, S8",
      "a product type of a role that the port does not have",
      "Product_Type_UFP_SOP and Product_Type_DFP_SOP are what the port answers in that data role. A hub or a "
      "peripheral acts as a device, a hub or a host as a host, a power brick provides power, and a port that does "
      "not respond in a role has product type 0 there. Correct the type, or the field that it contradicts."},
     CheckProductTypeAgainstRole},
    {{"dfp-port-number", Severity::Warning, Edition{2, 0}, Confidence::Medium, "S2, S6",
      "a port number for the DFP VDO that does not fit, or that two ports share",
      "DFP_VDO_Port_Number tells the ports of a product apart. The DFP VDO has five bits for it, so it is 0 to 31 "
      "and different for each port."},
     CheckDfpPortNumber},

    // PD revision.
    {{"pd-revision-pair", Severity::Error, Edition{3, 0}, Confidence::High, "S1, S5",
      "two fields that name different revisions of USB PD",
      "PD_Specification_Revision is the code that PD messages carry: 1 is revision 2, and 2 is revision 3. "
      "PD_Spec_Revision_Major is the revision itself, so it is greater by one."},
     CheckPdRevisionPair},
    {{"pd3-feature-in-pd2", Severity::Error, kEvery, Confidence::High, "S1, S3, S7",
      "features of PD revision 3 in a port of revision 2",
      "Extended messages in chunks or unchunked, security messages, manufacturer info, fast role swap, Data_Reset, "
      "Enter_USB, EPR and augmented PDOs came with revision 3 of USB PD. Where PD_Specification_Revision is 1 "
      "(revision 2), the fields about them are NO and there are no augmented PDOs. Correct the revision or these "
      "fields."},
     CheckPd3FeatureInPd2},
    {{"pd-revision-unknown", Severity::Warning, Edition{3, 0}, Confidence::Medium, "S20",
      "a revision and version of USB PD that was never published",
      "PD_Spec_Revision_Major, PD_Spec_Revision_Minor, PD_Spec_Version_Major and PD_Spec_Version_Minor name one "
      "published specification, such as revision 3.1, version 1.8. Revisions after 3.2 are not known here and are "
      "accepted."},
     CheckPdRevisionUnknown},

    // Ports of one product.

    // Battery, supply, BC 1.2.
    {{"battery-count", Severity::Warning, Edition{1, 20}, Confidence::High, "S3, S8",
      "numbers of batteries that do not agree with whether there is one, or are too great",
      "If Port_Battery_Powered is YES, there is a battery in Num_Fixed_Batteries or a slot in "
      "Num_Swappable_Battery_Slots; if it is NO, both are 0. USB PD can tell four fixed batteries and four slots "
      "apart."},
     CheckBatteryCount},
    {{"power-source-role", Severity::Warning, kEvery, Confidence::High, "S8",
      "a power source that the port cannot have",
      "Type_C_Power_Source says whether the product is powered over this port: 0 never, 1 always, 2 at times. A "
      "port that only provides power never is. A product that depends on the port for all its power is not "
      "unconstrained, so Unconstrained_Power is NO where Type_C_Power_Source is 1."},
     CheckPowerSourceRole},
    {{"bc12-role", Severity::Warning, kEvery, Confidence::Medium, "S16",
      "a BC 1.2 role that does not go with the Type-C role",
      "A BC 1.2 charging port provides power and a portable device takes it. So BC_1_2_Support is not 2 or 3 where "
      "Type_C_State_Machine is 1 (SNK), and not 1 or 3 where it is 0 (SRC). A charging port that also carries USB "
      "data is a CDP (BC_1_2_Charging_Port_Type 1) and needs a port that can act as host; without data it is a DCP "
      "(0)."},
     CheckBc12Role},

    // USB4.

    // Kind of product.

    // VCONN and cable.

    // Notes.
};

}  // namespace

std::span<const Rule> ConsistencyRules() { return kRules; }

}  // namespace vifanalysis
