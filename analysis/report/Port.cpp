#include "report/PowerPicture.h"
#include "report/PowerWords.h"
#include "report/Sections.h"
#include "rules/PdoFacts.h"
#include "rules/PortRole.h"

#include <analysis/PowerProfile.h>
#include <analysis/Text.h>

#include <algorithm>

namespace vifanalysis {

namespace {

constexpr Fact kPortFacts[] = {
    {"PD_Port_Type", "PD role"},
    {"Type_C_State_Machine", "Type-C state machine"},
    {"Connector_Type", "Connector"},
    {"Captive_Cable", "Captive cable"},
    {"PD_Specification_Revision", "PD specification"},
    {"RP_Value", "Type-C current as source"},
    {"BC_1_2_Support", "BC 1.2"},
    {"PD_Power_As_Source", "PD power as source"},
    {"PD_Power_As_Sink", "PD power as sink"},
    {"EPR_Supported_As_Src", "EPR as source"},
    {"EPR_Supported_As_Snk", "EPR as sink"},
    {"Port_Source_Power_Type", "Source power"},
    {"Host_Supports_USB_Data", "USB host"},
    {"Host_Speed", "Host speed"},
    {"Device_Supports_USB_Data", "USB device"},
    {"Device_Speed", "Device speed"},
    {"USB4_Supported", "USB4"},
    {"USB4_Max_Speed", "USB4 speed"},
    {"Type_C_Sources_VCONN", "Sources VCONN"},
};

constexpr Fact kCableFacts[] = {
    {"Product_Type", "Kind of cable"},
    {"Cable_VBUS_Current", "VBUS current"},
    {"Max_VBUS_Voltage_Vdm_V2", "Greatest VBUS voltage"},
    {"VBUS_Through_Cable", "VBUS through the cable"},
    {"EPR_Mode_Capable", "EPR"},
    {"Cable_USB_Highest_Speed", "Fastest USB"},
    {"Cable_Superspeed_Support", "SuperSpeed"},
    {"Active_Cable_USB2_Supported", "USB 2.0"},
    {"Active_Cable_USB32_Supported", "USB 3.2"},
    {"Active_Cable_USB4_Support", "USB4"},
    {"Active_Cable_USB_Lanes", "USB lanes"},
    {"SBU_Supported", "SBU"},
    {"SBU_Type", "Kind of SBU"},
    {"Cable_Termination_Type", "Termination and VCONN"},
    {"Cable_Latency", "Latency"},
    {"Type_C_To_Type_C_Capt_Vdm_V2", "Ends"},
    {"Cable_SOP_PP_Controller", "Controller at SOP''"},
    {"Active_Cable_Max_Operating_Temp", "Greatest operating temperature"},
    {"Active_Cable_Shutdown_Temp", "Shutdown temperature"},
};

Sides WithoutComponents(const PortSides& sides) { return {sides.begin(), sides.end()}; }

/// The PDO's number, a link to its first field where there is one.
void WritePdoNumber(CMarkup& page, const PortSide& side, const CPdoView& pdo) {
  const std::string number = std::to_string(pdo.Index());
  page.Begin("th", {{"scope", "row"}});
  if (pdo.FirstField() != nullptr) {
    WriteLink(page, side, *pdo.FirstField(), number);
  } else {
    page.Text(number);
  }
  page.End();
}

void WritePdoRow(CMarkup& page, const PortSide& side, const CPdoView& pdo) {
  std::vector<const CVIFField*> fields;
  for (const NamedField& named : pdo.Fields()) fields.push_back(&named.field->field);
  const PowerProfile profile = DescribePdo(fields, side.vif->GetEdition());
  page.Begin("tr");
  WritePdoNumber(page, side, pdo);
  for (const std::string& text : {profile.supply, profile.voltage, profile.current, profile.power}) {
    page.Element("td", text.empty() ? "\u2013" : text);
  }
  page.End();
}

/// The PDOs of one file, as a table.
void WritePdos(CMarkup& page, const PortSide& side, PdoSide kind) {
  if (side.component == nullptr || side.component->Pdos(kind).empty()) return;
  const std::vector<CPdoView>& pdos = side.component->Pdos(kind);
  const std::string caption = kind == PdoSide::Source ? "Source PDOs" : "Sink PDOs";
  page.Begin("div", {{"class", "side"}});
  page.Begin("table", {{"class", "pdos"}});
  page.Element("caption", side.label.empty() ? caption : caption + " \u00b7 " + std::string(side.label));
  page.Begin("thead");
  page.Begin("tr");
  for (const std::string_view heading : {"PDO", "Supply", "Voltage", "Current", "Power"}) {
    page.Element("th", {{"scope", "col"}}, heading);
  }
  page.End();
  page.End();
  page.Begin("tbody");
  for (std::size_t i = 0; i < std::min(pdos.size(), kMostShown); ++i) WritePdoRow(page, side, pdos[i]);
  page.End();
  page.End();
  WriteOthers(page, pdos.size(), "PDO");
  page.End();
}

bool HasPdos(const PortSides& sides, PdoSide kind) {
  return std::any_of(sides.begin(), sides.end(), [&](const PortSide& side) {
    return side.component != nullptr && !side.component->Pdos(kind).empty();
  });
}

std::vector<PowerLayer> LayersOf(const PortSides& sides, PdoSide kind) {
  std::vector<PowerLayer> layers;
  for (const PortSide& side : sides) {
    if (side.component == nullptr) continue;
    layers.push_back({std::string(side.label), side.component->Pdos(kind), RatingOf(*side.component, kind)});
  }
  return layers;
}

void WritePicture(CMarkup& page, const ReportedPort& port, PdoSide kind) {
  const std::string what = TitleOf(port) + ": " + std::string(SideName(kind)) + " PDOs by voltage and current";
  CMarkup picture;
  if (!DrawPower(picture, LayersOf(port.sides, kind), what, port.id + '-' + std::string(SideName(kind)))) return;
  page.Begin("div", {{"class", "power-box"}, {"tabindex", "0"}, {"role", "group"}, {"aria-label", what}});
  page.Append(picture.Take());
  page.End();
}

/// What a side of the port offers or asks for, as a picture and as tables that say the same.
void WritePower(CMarkup& page, const ReportedPort& port, PdoSide kind) {
  if (!HasPdos(port.sides, kind)) return;
  const std::string heading = kind == PdoSide::Source ? "Power as a source" : "Power as a sink";
  page.Element("h3", heading);
  page.Begin("figure", {{"class", "picture"}});
  WritePicture(page, port, kind);
  page.Begin("div", {{"class", "sides"}});
  for (const PortSide& side : port.sides) WritePdos(page, side, kind);
  page.End();
  page.End();
}

bool IsCable(const PortSides& sides) {
  return std::any_of(sides.begin(), sides.end(),
                     [](const PortSide& side) { return side.component != nullptr && IsCable(*side.component); });
}

}  // namespace

void WritePort(CMarkup& page, const ReportedPort& port) {
  page.Begin("section", {{"id", port.id}, {"class", "port"}});
  page.Element("h2", TitleOf(port));
  const Sides sides = WithoutComponents(port.sides);
  if (IsCable(port.sides)) WriteFacts(page, "What the cable carries", sides, kCableFacts);
  WriteFacts(page, "Roles and speeds", sides, kPortFacts);
  WritePower(page, port, PdoSide::Source);
  WritePower(page, port, PdoSide::Sink);
  WriteModes(page, port.sides);
  page.End();
}

}  // namespace vifanalysis
