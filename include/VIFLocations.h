// The groups of a Vendor Info File that a field can belong to.
#pragma once

#include "VIFExport.h"

#include <cstdint>

/// The thirteen locations. The numbers are part of the interface and never change; any other value is not a location. A
/// Router is inside the Product and a RouterPcie inside a Router; SrcPdo, SnkPdo, SopSvid and CableSvid are inside a
/// Component; the modes are inside their SVID.
enum EVifLocation : std::int32_t {
  eVifLocUnset = 0,           ///< no location: the slot is unused
  eVifLocVif = 1,             ///< the VIF as a whole (the file's header fields)
  eVifLocAppVersion = 2,      ///< the application header, `VIF_App`
  eVifLocProduct = 3,         ///< the product
  eVifLocRouter = 4,          ///< one USB4 router of the product
  eVifLocRouterPcie = 5,      ///< one PCIe endpoint of a USB4 router
  eVifLocComponent = 6,       ///< one component
  eVifLocSrcPdo = 7,          ///< one source PDO of a component
  eVifLocSnkPdo = 8,          ///< one sink PDO of a component
  eVifLocSopSvid = 9,         ///< one SOP SVID of a component
  eVifLocSopSvidMode = 10,    ///< one mode of an SOP SVID
  eVifLocCableSvid = 11,      ///< one cable SVID of a component
  eVifLocCableSvidMode = 12,  ///< one mode of a cable SVID
};

/// Describes one location. The texts are valid until the library is unloaded.
struct VifLocTypeInfo {
  EVifLocation location;  ///< the location described
  const char* name;       ///< its short name, such as "SrcPdo"
  const char* xpath;      ///< the absolute XPath of its element in an XML VIF, ending in one blank
};

/// Describes a location, such as 7: "SrcPdo", "/VIF/Component/SrcPdoList/SrcPDO ".
///
/// Any value that is not a location is described as `eVifLocUnset` ("<unset>"), whose `xpath` is not a path but a
/// warning for people to read.
/// \return a reference that is valid until the library is unloaded; always the same one for the same value.
/// Throws nothing. May be called from any number of threads at once.
VIF_API const VifLocTypeInfo& GetVifLocInfo(EVifLocation location);

/// The location that precedes this one in a field's slots, that is, of the enclosing group: `eVifLocComponent` for
/// `eVifLocSrcPdo`, for example. `eVifLocUnset` for a location that comes first, and for any value that is not a
/// location. Throws nothing; may be called from any number of threads at once.
constexpr EVifLocation GetVifLocParent(EVifLocation location) noexcept {
  switch (location) {
    case eVifLocUnset:
    case eVifLocVif:
    case eVifLocAppVersion:
    case eVifLocProduct:
    case eVifLocComponent: break;
    case eVifLocRouter: return eVifLocProduct;
    case eVifLocRouterPcie: return eVifLocRouter;
    case eVifLocSrcPdo:
    case eVifLocSnkPdo:
    case eVifLocSopSvid:
    case eVifLocCableSvid: return eVifLocComponent;
    case eVifLocSopSvidMode: return eVifLocSopSvid;
    case eVifLocCableSvidMode: return eVifLocCableSvid;
  }
  return eVifLocUnset;
}

/// The number of the first group of a kind: products and USB4 routers are numbered from 0, all other groups from 1. The
/// VIF and its application header, of which a file has one each, are always number 0. Also 0 for any other value.
/// Throws nothing; may be called from any number of threads at once.
constexpr std::uint64_t GetVifLocFirstIndex(EVifLocation location) noexcept {
  switch (location) {
    case eVifLocUnset:
    case eVifLocVif:
    case eVifLocAppVersion:
    case eVifLocProduct:
    case eVifLocRouter: break;
    case eVifLocRouterPcie:
    case eVifLocComponent:
    case eVifLocSrcPdo:
    case eVifLocSnkPdo:
    case eVifLocSopSvid:
    case eVifLocSopSvidMode:
    case eVifLocCableSvid:
    case eVifLocCableSvidMode: return 1;
  }
  return 0;
}
