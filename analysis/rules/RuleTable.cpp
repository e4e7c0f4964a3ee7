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

    // Discover Identity and announced details.

    // PD revision.

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

    // Battery, supply, BC 1.2.

    // USB4.
    {{"usb4-needs",
      Severity::Error,
      {3, 0},
      Confidence::Medium,
      "S1, S7",
      "a USB4 port without something that USB4 takes",
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
      "S1",
      "a USB4 port of a router that the product does not have",
      "USB4_Router_Index is the USB4_Router_ID of the router that the port belongs to. Correct the index, or "
      "declare the router."},
     CheckUsb4Router},
    {{"enter-usb-without-usb4",
      Severity::Note,
      {3, 15},
      Confidence::Medium,
      "S7",
      "Enter_USB_Supported on a port without USB4",
      "The Enter_USB message is needed for USB4 alone. A port without USB4 may support it, but Enter_USB_Supported "
      "is easily left at YES by mistake. Set it to NO unless the port answers the message."},
     CheckEnterUsbWithoutUsb4},

    // Kind of product.
    {{"captive-plug",
      Severity::Error,
      {3, 0},
      Confidence::High,
      "S2, S9",
      "a captive cable with a receptacle, or a port without one that has a plug",
      "ID_Header_Connector_Type_SOP is 3 for a plug, which a product has at the end of a captive cable or on its "
      "own body, and 2 for a receptacle. A plug counts as a captive cable, so Captive_Cable and the type must "
      "agree."},
     CheckCaptivePlug},
    {{"cable-and-port",
      Severity::Warning,
      {2, 0},
      Confidence::Medium,
      "S1, S12",
      "fields that do not fit the kind of product",
      "VIF_Product_Type says whether the file is about a product with ports, a cable or a repeater. A port has no "
      "fields of a cable unless its captive cable has an eMarker (Captive_Cable_Is_eMarked), and a cable has no "
      "PDOs, no power rating and no role but eMarker (PD_Port_Type). Certification_Type 1 (Reference Platform) is "
      "not for cables, and repeaters have 2 (Silicon) only. Correct the type, or remove the fields."},
     CheckCableAndPort},

    // VCONN and cable.

    // Notes.
    {{"ignored-fields",
      Severity::Note,
      {3, 0},
      Confidence::High,
      "S1",
      "fields that nothing reads, because another one is NO",
      "Some fields count only if another one is YES: those of USB4 if USB4_Supported is, those of over-current "
      "protection if PD_OC_Protection is, and so on. They do no harm, but may hide that the other field is wrong. "
      "Remove them, or correct the other field."},
     CheckIgnoredFields},
    {{"placeholder", Severity::Note, kEvery, Confidence::High, "S1, S12", "a value that looks like a placeholder",
      "Editors and templates fill Vendor_Name, Model_Part_Number, Product_Revision, TID and the vendor and product "
      "IDs (such as USB_VID_SOP and PID_SOP) with texts such as FIX-ME and with numbers such as 0xFFFF. Replace "
      "them before the file is handed in. The USB-IF provides the TID."},
     CheckPlaceholder},
};

}  // namespace

std::span<const Rule> ConsistencyRules() { return kRules; }

}  // namespace vifanalysis
