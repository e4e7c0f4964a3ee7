// Small VIFs, and the fields of some.
#pragma once

#include "VendorInfoFile.h"
#include "support/XmlVif.h"

#include <array>
#include <string>
#include <vector>

namespace testsupport {

inline constexpr VifIndex kUnused = CVIFField::UNSPECIFIED_INDEX;
inline constexpr std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH> kAnywhere = {kUnused, kUnused, kUnused};

inline constexpr const char* kLongName = "Vendor_Name_That_Needs_Memory_Of_Its_Own";
inline constexpr const char* kLongValue = "a value that needs memory of its own";

/// Eight lines that yield six fields, one of an unknown name.
inline std::string TextVif() {
  return "; a comment that takes some room to write down\n"
         "$Vendor_Name: \"a name that needs memory of its own\" ; and a comment as well\n"
         "PID: 1\n"
         "Src_PDO_Voltage1: 100 ; 5000 mV, which is a description with a length\n"
         "SVID_Mode_Enter_SOP1: YES\n"
         "Name_Of_Nothing_Known_To_Anybody: 0x12345678\n"
         "this line has no colon and is not understood\n"
         "Product_Total_Source_Power_mW: 65000 ; in mW\n";
}

constexpr std::size_t kTextFieldCount = 6;

/// A header, a product with two routers, and two components with a source PDO each.
inline std::string XmlDocumentText() {
  return XmlVif(
      "<vif:VIF_Specification>3.1</vif:VIF_Specification>"
      "<vif:VIF_App><vif:Vendor>a vendor whose name needs memory</vif:Vendor><vif:Name>a name</vif:Name></vif:VIF_App>"
      "<vif:Vendor_Name>a vendor &amp; its \xC3\xA4 name that needs memory</vif:Vendor_Name><vif:TID>12345</vif:TID>"
      "<vif:Product><vif:USB4_Dock value=\"true\"/><vif:USB4RouterList>"
      "<vif:Usb4Router><vif:USB4_Router_ID value=\"9\"/></vif:Usb4Router>"
      "<vif:Usb4Router><vif:USB4_Router_ID value=\"10\"/></vif:Usb4Router></vif:USB4RouterList></vif:Product>"
      "<vif:Component><vif:Port_Label>a label that needs memory of its own</vif:Port_Label><vif:SrcPdoList><vif:SrcPDO>"
      "<vif:Src_PDO_Voltage value=\"100\">5000 mV</vif:Src_PDO_Voltage></vif:SrcPDO></vif:SrcPdoList></vif:Component>"
      "<vif:Component><vif:RP_Value value=\"1\"/><vif:SrcPdoList><vif:SrcPDO>"
      "<vif:Src_PDO_Voltage value=\"180\"/></vif:SrcPDO></vif:SrcPdoList></vif:Component>"
      "<opt:OptionalContent/>");
}

constexpr std::size_t kXmlFieldCount = 11;

/// Twelve fields of three names in components 1 and 2, some of them in a source PDO.
inline std::vector<CVIFField> SampleFields() {
  std::vector<CVIFField> fields;
  for (const std::uint64_t component : {1U, 2U}) {
    const VifIndex place = {eVifLocComponent, component};
    fields.emplace_back(false, kLongName, kLongValue, place, kUnused, kUnused);
    for (const std::uint64_t pdo : {1U, 2U, 3U, 4U, 5U}) {
      const std::string name = pdo == 1 ? "Src_PDO_Supply_Type_With_A_Long_Name" : "Src_PDO_Voltage_With_A_Long_Name";
      fields.emplace_back(true, name, "100", "5000 mV and more, a long description", place,
                          VifIndex{eVifLocSrcPdo, pdo}, kUnused);
    }
  }
  return fields;
}

}  // namespace testsupport
