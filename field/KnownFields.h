// The field names that the VIF format defines, as plain data.
#pragma once

#include "VIFLocations.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace vif {

/// One field name of the format.
struct KnownField {
  /// The name as a text VIF writes it. Each `kIndexMark` stands for the digits of an index, of which there may be none.
  /// Without the marks, this is the canonical name.
  std::string_view spelling;

  /// The groups the field belongs to, outermost first; unused slots are `eVifLocUnset`.
  std::array<EVifLocation, 3> locations;
};

constexpr char kIndexMark = '#';

/// All fields of the format, in the order of the field definition table.
std::span<const KnownField> KnownFields();

/// The two spellings of one field, in which SOP'' is written as SOP_PP or as itself. It is stored under the first.
constexpr std::string_view kCableController = "Cable_SOP_PP_Controller";
constexpr std::string_view kCableControllerWithPrimes = "Cable_SOP''_Controller";

}  // namespace vif
