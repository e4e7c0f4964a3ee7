// The fields of one group.
#include "QueryCheck.h"

#include <cstddef>

namespace {

using testsupport::ExpectQueryBearsFailures;
using testsupport::kUnused;

constexpr VifIndexNumber kAny = CVIFField::INDEX_NOT_SPECIFIED;

/// An object with one field with that place, and one elsewhere.
CVendorInfoFile With(const VifIndex& index1, const VifIndex& index2, const VifIndex& index3) {
  CVendorInfoFile vif;
  vif.Append({CVIFField(false, testsupport::kLongName, testsupport::kLongValue, index1, index2, index3),
              CVIFField(false, "Elsewhere", "", VifIndex{eVifLocVif, 0}, kUnused, kUnused)});
  return vif;
}

/// Asks for the group that the one field is in.
template <typename Query>
void ExpectGroupBearsFailures(const CVendorInfoFile& vif, const Query& query) {
  const std::string expected = "[" + testsupport::FieldText(vif.GetFields()->front()) + "]";
  ExpectQueryBearsFailures(vif, expected, query);
}

constexpr VifIndex kComponent = {eVifLocComponent, 2};
constexpr VifIndex kProduct = {eVifLocProduct, 0};

TEST(GroupMemory, GetComponent) {
  const CVendorInfoFile vif = With(kComponent, kUnused, kUnused);
  ExpectGroupBearsFailures(vif, [&] { return vif.GetComponent(2); });
}

TEST(GroupMemory, GetRouter) {
  const CVendorInfoFile vif = With(kProduct, VifIndex{eVifLocRouter, 1}, kUnused);
  ExpectGroupBearsFailures(vif, [&] { return vif.GetRouter(1); });
}

TEST(GroupMemory, GetPcieEndpointIds) {
  const CVendorInfoFile vif = With(kProduct, VifIndex{eVifLocRouter, 1}, VifIndex{eVifLocRouterPcie, 2});
  ExpectGroupBearsFailures(vif, [&] { return vif.GetPcieEndpointIds(1, 2); });
}

TEST(GroupMemory, GetSrcPdo) {
  const CVendorInfoFile vif = With(kComponent, VifIndex{eVifLocSrcPdo, 3}, kUnused);
  ExpectGroupBearsFailures(vif, [&] { return vif.GetSrcPdo(2, kAny); });
}

TEST(GroupMemory, GetSnkPdo) {
  const CVendorInfoFile vif = With(kComponent, VifIndex{eVifLocSnkPdo, 3}, kUnused);
  ExpectGroupBearsFailures(vif, [&] { return vif.GetSnkPdo(2, 3); });
}

TEST(GroupMemory, GetSopSvid) {
  const CVendorInfoFile vif = With(kComponent, VifIndex{eVifLocSopSvid, 1}, kUnused);
  ExpectGroupBearsFailures(vif, [&] { return vif.GetSopSvid(2, 1); });
}

TEST(GroupMemory, GetSopSvidMode) {
  const CVendorInfoFile vif = With(kComponent, VifIndex{eVifLocSopSvid, 1}, VifIndex{eVifLocSopSvidMode, 4});
  ExpectGroupBearsFailures(vif, [&] { return vif.GetSopSvidMode(2, 1, 4); });
}

TEST(GroupMemory, GetCableSvid) {
  const CVendorInfoFile vif = With(kComponent, VifIndex{eVifLocCableSvid, 1}, kUnused);
  ExpectGroupBearsFailures(vif, [&] { return vif.GetCableSvid(2, 1); });
}

TEST(GroupMemory, GetCableSvidMode) {
  const CVendorInfoFile vif = With(kComponent, VifIndex{eVifLocCableSvid, 1}, VifIndex{eVifLocCableSvidMode, 4});
  ExpectGroupBearsFailures(vif, [&] { return vif.GetCableSvidMode(2, 1, 4); });
}

}  // namespace
