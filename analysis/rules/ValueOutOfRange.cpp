#include "files/Sentence.h"
#include "rules/RuleFunctions.h"

#include <analysis/FieldText.h>
#include <analysis/Vocabulary.h>

#include <algorithm>
#include <iterator>

namespace vifanalysis {

namespace {

// The enumerations whose last value is certain. Speeds are not among them, because they grow, nor is
// Type_C_State_Machine, to which cables give a value of their own, nor are those of cables, of which too few files are
// known.
constexpr std::string_view kCompleteEnumerations[] = {
    "BC_1_2_Charging_Port_Type",
    "BC_1_2_Support",
    "Certification_Type",
    "Connector_Type",
    "FR_Swap_Reqd_Type_C_Current_As_Initial_Source",
    "FR_Swap_Type_C_Current_Capability_As_Initial_Sink",
    "ID_Header_Connector_Type_SOP",
    "PD_OCP_Method",
    "PD_Port_Type",
    "PD_Specification_Revision",
    "Port_Source_Power_Type",
    "Product_Type_DFP_SOP",
    "Product_Type_UFP_SOP",
    "RP_Value",
    "Snk_PDO_Supply_Type",
    "Src_PDO_Supply_Type",
    "Src_PD_OCP_UV_Threshold_Type",
    "Type_C_Power_Source",
    "VIF_Product_Type",
};

constexpr std::string_view kSixteenBits[] = {
    "Manufacturer_Info_PID",        "Manufacturer_Info_VID",        "PID",     "SVID",
    "USB4_PCIe_Endpoint_Device_ID", "USB4_PCIe_Endpoint_Vendor_ID", "USB_VID", "bcdDevice"};

constexpr std::string_view kThirtyTwoBits[] = {"SVID_Mode_Recog_Mask", "SVID_Mode_Recog_Value", "XID"};

constexpr std::string_view kPdoEndings[] = {"Max_Current", "Max_Power", "Max_Voltage", "Min_Voltage",
                                            "Op_Current",  "Op_Power",  "Voltage"};

template <std::size_t count>
bool IsIn(const std::string_view (&names)[count], std::string_view name) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

/// Whether the name is that of a voltage, current or power in a PDO.
bool IsPdoQuantity(std::string_view name) {
  constexpr std::size_t prefix = std::string_view("Src_PDO_").size();
  if (!name.starts_with("Src_PDO_") && !name.starts_with("Snk_PDO_")) return false;
  return IsIn(kPdoEndings, name.substr(prefix));
}

/// How many bits the number has where it is announced; 0 when that is not known.
unsigned WidthOf(const FieldInfo& field) {
  if (IsPdoQuantity(field.name)) return 10;
  if (IsIn(kSixteenBits, field.name)) return 16;
  if (IsIn(kThirtyTwoBits, field.name)) return 32;
  if (field.units.empty()) return 0;
  switch (field.units.front().unit) {
    case Unit::Identifier: return 16;
    case Unit::DecimalIdentifier:
    case Unit::Bits: return 32;
    default: return 0;
  }
}

bool HasAllValues(const FieldInfo& field) {
  return !field.values.empty() && (field.type == FieldType::Boolean || IsIn(kCompleteEnumerations, field.name));
}

/// Identifiers and masks are read in hexadecimal, quantities in decimal.
std::string NumberText(std::uint64_t number, unsigned width) {
  return width < 16 ? std::to_string(number) : QuantityText({number, Unit::Identifier});
}

/// What a number of the field may be at most, and what it is instead, as parts of a sentence; empty when it is not too
/// great.
std::string WhyTooGreat(const FieldInfo& field, std::uint64_t number) {
  if (HasAllValues(field)) {
    const std::uint64_t last = field.values.back().value;
    if (number <= last) return {};
    return std::to_string(number) + ", but there are only the values " + std::to_string(field.values.front().value) +
           " to " + std::to_string(last);
  }
  const unsigned width = WidthOf(field);
  if (width == 0 || number >> width == 0) return {};
  return NumberText(number, width) + ", but has only " + std::to_string(width) + " bits: at most " +
         NumberText((std::uint64_t{1} << width) - 1, width);
}

/// The field of the format that a field with a number stands for; null when there is none.
const FieldInfo* MeaningOf(const FoundField& found) {
  const NameMatch match = FindField(found.field.Name());
  const bool isSure = match.kind == NameKind::Canonical || match.kind == NameKind::OtherSpelling;
  return isSure && HasNumber(found.field) ? match.field : nullptr;
}

}  // namespace

void CheckValueOutOfRange(const CVifView& file, CReporter& reporter) {
  for (const FoundField& found : file.Fields()) {
    const FieldInfo* field = MeaningOf(found);
    if (field == nullptr || reporter.HasFound("unanswered", found) || reporter.HasFound("text-against-value", found)) {
      continue;
    }
    const std::string why = WhyTooGreat(*field, found.field.GetULongNumericValue());
    if (!why.empty()) reporter.Add(found, Quoted(found.field.Name()) + " is " + why);
  }
}

}  // namespace vifanalysis
