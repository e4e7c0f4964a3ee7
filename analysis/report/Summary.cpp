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

bool Differs(const ShownFile& file, std::string_view name) {
  const FoundField* found = file.vif->View().FindHeader(name);
  return found != nullptr && file.rows->IsDifferent(file.vif->PositionOf(*found));
}

/// What two files say about themselves.
void WriteHeaders(CMarkup& page, const ShownFiles& files) {
  page.Begin("table", {{"class", "facts"}});
  page.Element("caption", "The files");
  page.Begin("thead");
  page.Begin("tr");
  page.Element("td", "");
  for (const ShownFile& file : files) page.Element("th", {{"scope", "col"}}, file.label);
  page.End();
  page.End();
  page.Begin("tbody");
  for (const auto& [name, label] : kHeaderFacts) {
    const std::string before = files.front().vif->HeaderSays(name);
    const std::string after = files.back().vif->HeaderSays(name);
    if (before.empty() && after.empty()) continue;
    const bool differs = Differs(files.front(), name) || Differs(files.back(), name);
    page.Begin("tr", {{"class", differs ? "changed" : "same"}});
    page.Begin("th", {{"scope", "row"}});
    page.Text(label);
    if (differs) WriteMark(page, KindText(DifferenceKind::Changed));
    page.End();
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

void WriteCounts(CMarkup& page, const ShownFiles& files) {
  for (const ShownFile& file : files) {
    page.Begin("p", {{"class", "counts"}});
    if (!file.label.empty()) page.Text(std::string(file.label) + ": ");
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
      const std::size_t count = CountOf(*file.vif, severity);
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
  const auto addRole = [&](std::string_view role, std::string_view speed) {
    const std::string said = side.vif->Says(component, speed);
    add(std::string(role) + (said.empty() ? "" : " " + said));
  };
  if (component.IsYes("Host_Supports_USB_Data")) addRole("host", "Host_Speed");
  if (component.IsYes("Device_Supports_USB_Data")) addRole("device", "Device_Speed");
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

std::string TitleOf(const Sides& sides) {
  const Side& shown = sides.back().group != nullptr ? sides.back() : sides.front();
  std::string title = PlaceInWords(shown.group->Place());
  if (sides.size() == 1) return title;
  const Side& other = &shown == &sides.back() ? sides.front() : sides.back();
  if (other.group == nullptr) return title + " (only in " + std::string(shown.label) + ")";
  const std::string otherTitle = PlaceInWords(other.group->Place());
  return otherTitle == title ? title : title + " (" + otherTitle + " in " + std::string(other.label) + ")";
}

std::string TitleOf(const ReportedPort& port) {
  const PortSide& shown = port.sides.back().component != nullptr ? port.sides.back() : port.sides.front();
  const std::string_view label = shown.component->Text("Port_Label");
  const std::string title = TitleOf(Sides(port.sides.begin(), port.sides.end()));
  return label.empty() ? title : title + " \u00b7 " + std::string(label);
}

void WriteSummary(CMarkup& page, const ShownFiles& files, const ReportedPorts& ports) {
  page.Begin("section", {{"id", "summary"}});
  const CReportedVif& vif = *files.back().vif;
  const std::string name = ProductName(vif);
  page.Element("h1", name.empty() ? vif.File().name : name);
  WriteCounts(page, files);
  if (files.size() == 1) {
    WriteHeader(page, vif);
  } else {
    WriteHeaders(page, files);
  }
  WritePortRows(page, ports);
  page.End();
}

}  // namespace vifanalysis
