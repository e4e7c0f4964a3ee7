#include "report/PowerWords.h"
#include "report/Sections.h"
#include "rules/PortRole.h"

#include <analysis/Text.h>

#include <algorithm>
#include <cstddef>

namespace vifanalysis {

namespace {

/// A fact about the file as a whole.
constexpr Fact kHeaderFacts[] = {
    {"Model_Part_Number", "Product"}, {"Vendor_Name", "Vendor"},
    {"Product_Revision", "Revision"}, {"TID", "TID"},
    {"VIF_Product_Type", "Kind"},     {"VIF_Specification", "VIF edition"},
    {"VIF_Producer", "Written by"},
};

std::string ProductName(const CReportedVif& vif) {
  std::string name = vif.HeaderSays("Vendor_Name");
  const std::string model = vif.HeaderSays("Model_Part_Number");
  if (!name.empty() && !model.empty()) name += ' ';
  return name + model;
}

/// What one file says about itself. The name of the product is the page's heading.
void WriteHeader(CMarkup& page, const CReportedVif& vif) {
  page.Begin("dl", {{"class", "facts"}});
  const auto write = [&](std::string_view label, const std::string& text) {
    if (text.empty()) return;
    page.Begin("div");
    page.Element("dt", label);
    page.Element("dd", text);
    page.End();
  };
  write("File", vif.File().name);
  for (const auto& [name, label] : kHeaderFacts) write(label, vif.HeaderSays(name));
  page.End();
}

/// What two files say about themselves.
void WriteHeaders(CMarkup& page, const ReportedVifs& vifs) {
  page.Begin("table", {{"class", "facts"}});
  page.Element("caption", "The files");
  page.Begin("thead");
  page.Begin("tr");
  page.Element("td", "");
  for (const CReportedVif* vif : vifs) page.Element("th", {{"scope", "col"}}, vif->File().name);
  page.End();
  page.End();
  page.Begin("tbody");
  for (const auto& [name, label] : kHeaderFacts) {
    const std::string before = vifs.front()->HeaderSays(name);
    const std::string after = vifs.back()->HeaderSays(name);
    if (before.empty() && after.empty()) continue;
    // The two forms of a file are written by different programs.
    const bool differs = before != after && name != "VIF_Producer";
    page.Begin("tr", {{"class", differs ? "changed" : "same"}});
    page.Element("th", {{"scope", "row"}}, label);
    page.Element("td", before);
    page.Element("td", after);
    page.End();
  }
  page.End();
  page.End();
}

std::size_t CountOf(const CReportedVif& vif, Severity severity) {
  return static_cast<std::size_t>(std::count_if(vif.File().findings.begin(), vif.File().findings.end(),
                                                [&](const Finding& finding) { return finding.severity == severity; }));
}

void WriteCounts(CMarkup& page, const ReportedVifs& vifs) {
  for (const CReportedVif* vif : vifs) {
    page.Begin("p", {{"class", "counts"}});
    if (vifs.size() == 2) page.Text(vif->File().name + ": ");
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
      const std::size_t count = CountOf(*vif, severity);
      const std::string name = SeverityName(severity);
      page.Begin("a", {{"class", "count " + (count == 0 ? std::string("zero") : name)}, {"href", "#findings"}});
      page.Text(Amount(count, name));
      page.End();
      page.Text(" ");
    }
    page.End();
  }
}

/// Such as "USB4 Gen 3 (40Gb), USB 3.2 Gen 2x1".
std::string DataInWords(const PortSide& side) {
  const CComponentView& component = *side.component;
  std::string text;
  const auto add = [&](const std::string& part) {
    if (!part.empty() && text.find(part) == std::string::npos) text.append(text.empty() ? "" : ", ").append(part);
  };
  if (component.IsYes("USB4_Supported") && !IsCable(component)) {
    const std::string speed = side.vif->Says(component, "USB4_Max_Speed");
    add(speed.empty() ? "USB4" : "USB4 " + speed);
  }
  if (component.IsYes("Host_Supports_USB_Data")) add("host " + side.vif->Says(component, "Host_Speed"));
  if (component.IsYes("Device_Supports_USB_Data")) add("device " + side.vif->Says(component, "Device_Speed"));
  if (IsCable(component)) add(side.vif->Says(component, "Cable_USB_Highest_Speed"));
  return text;
}

std::string RoleInWords(const PortSide& side) {
  std::string text = side.vif->Says(*side.component, "PD_Port_Type");
  const std::string machine = side.vif->Says(*side.component, "Type_C_State_Machine");
  if (machine.empty() || machine == text || IsCable(*side.component)) return text;
  return text.empty() ? machine : text + ", " + machine;
}

void WriteCell(CMarkup& page, const std::string& text) {
  if (text.empty()) {
    page.Begin("td");
    page.Element("span", {{"class", "none"}}, "\u2013");
    page.End();
  } else {
    page.Element("td", text);
  }
}

void WritePortRow(CMarkup& page, const ReportedPort& port, const PortSide& side) {
  page.Begin("tr");
  page.Begin("th", {{"scope", "row"}});
  page.Element("a", {{"href", '#' + port.id}}, TitleOf(port));
  if (!side.label.empty()) {
    page.Text(" ");
    page.Element("span", {{"class", "place"}}, side.label);
  }
  page.End();
  WriteCell(page, side.vif->Says(*side.component, "Connector_Type"));
  WriteCell(page, RoleInWords(side));
  for (const PdoSide pdos : {PdoSide::Source, PdoSide::Sink}) {
    WriteCell(page, PowerInWords(*side.vif, *side.component, pdos));
  }
  WriteCell(page, DataInWords(side));
  page.End();
}

void WritePortRows(CMarkup& page, const ReportedPorts& ports) {
  if (ports.empty()) return;
  page.Begin("div", {{"class", "scroll"}, {"tabindex", "0"}, {"role", "region"}, {"aria-label", "The ports"}});
  page.Begin("table", {{"class", "ports"}});
  page.Element("caption", "The ports");
  page.Begin("thead");
  page.Begin("tr");
  for (const std::string_view heading : {"Port", "Connector", "Role", "Source", "Sink", "Data"}) {
    page.Element("th", {{"scope", "col"}}, heading);
  }
  page.End();
  page.End();
  page.Begin("tbody");
  std::size_t rows = 0;
  for (const ReportedPort& port : ports) {
    if (++rows > kMostShown) break;
    for (const PortSide& side : port.sides) {
      if (side.component != nullptr) WritePortRow(page, port, side);
    }
  }
  page.End();
  page.End();
  page.End();
  WriteOthers(page, ports.size(), "port");
}

}  // namespace

std::string TitleOf(const ReportedPort& port) {
  for (auto side = port.sides.rbegin(); side != port.sides.rend(); ++side) {
    if (side->component == nullptr) continue;
    const std::string_view label = side->component->Text("Port_Label");
    const std::string place = PlaceInWords(side->component->Place());
    return label.empty() ? place : place + " \u00b7 " + std::string(label);
  }
  return {};
}

void WriteSummary(CMarkup& page, const ReportedVifs& vifs, const ReportedPorts& ports) {
  page.Begin("section", {{"id", "summary"}});
  const std::string name = ProductName(*vifs.back());
  page.Element("h1", name.empty() ? vifs.back()->File().name : name);
  WriteCounts(page, vifs);
  if (vifs.size() == 1) {
    WriteHeader(page, *vifs.front());
  } else {
    WriteHeaders(page, vifs);
  }
  WritePortRows(page, ports);
  page.End();
}

}  // namespace vifanalysis
