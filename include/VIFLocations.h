// The groups of a Vendor Info File in which a field can stand.
#pragma once

#include "VIFExport.h"

#include <cstdint>

/// The thirteen locations. The numbers are part of the interface and never change; any other value is not a
/// location. A Router lies inside the Product and a RouterPcie inside a Router; SrcPdo, SnkPdo, SopSvid and
/// CableSvid lie inside a Component; the modes lie inside their SVID.
enum EVifLocation : std::int32_t {
  eVifLocUnset = 0,           ///< no location: the slot is not in use
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

/// What there is to say about one location. The texts live as long as the library is loaded.
struct VifLocTypeInfo {
  EVifLocation location;  ///< the location described
  const char* name;       ///< its short name, such as "SrcPdo"
  const char* xpath;      ///< the absolute XPath of its element in an XML VIF, ending in one blank
};

/// Describes a location, such as 7: "SrcPdo", "/VIF/Component/SrcPdoList/SrcPDO ".
///
/// For any value that is not a location it answers with a description of `eVifLocUnset` ("<unset>"), whose
/// `xpath` is a warning for people to read instead of a path.
/// \return a reference that is valid until the library is unloaded; the same one for the same value.
/// Throws nothing. May be called from any number of threads at once.
VIF_API const VifLocTypeInfo& GetVifLocInfo(EVifLocation location);

/// The location that stands just before this one in a field's slots: that of the group around it, such as
/// `eVifLocComponent` for `eVifLocSrcPdo`. `eVifLocUnset` for a location that stands first, and for any value that is
/// not a location. Throws nothing; may be called from any number of threads at once.
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

/// The number of the first group of a kind: products and USB4 routers count from 0, every other group from 1. The VIF
/// and its application header, of which a file has one each, always have the number 0. For any other value, 0 too.
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
