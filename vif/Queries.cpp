// The queries of CVendorInfoFile: one filter with different arguments.
#include "BaseUtilities/StringConvert.h"
#include "ContentAccess.h"
#include "Errors.h"
#include "FieldQuery.h"
#include "VIFImpl.h"
#include "VIFPositions.h"
#include "VendorInfoFile.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace {

using vif::CFieldQuery;
using vif::FoundFields;
using vif::QuerySlots;
using vif::SearchedFields;

constexpr const char* kAnyName = nullptr;

/// A wide pattern as UTF-8; null becomes the empty pattern.
std::string Narrow(const wchar_t* pattern) { return Utf16ToUtf8(pattern != nullptr ? pattern : L""); }

/// \param content null for none
SearchedFields Searched(const CVIFImpl* content) {
  static const CVIFImpl none;
  if (content == nullptr) content = &none;
  return {content->Fields(), content->Digests()};
}

VifFieldList MakeList(std::vector<CVIFField> fields) {
  VifFieldList list(nullptr, [](std::vector<CVIFField>* owned) { delete owned; });
  list.reset(new std::vector<CVIFField>(std::move(fields)));
  return list;
}

/// The object's name in messages.
std::string WhereText(const CVendorInfoFile& file) {
  return *file.FileName() != L'\0' ? Utf16ToUtf8(file.FileName()) : "this VIF";
}

[[noreturn]] void ThrowTooMany(std::size_t count, const std::string& where, const char* pattern) {
  vif::ThrowRunTimeError("%u fields in \"%s\" matched with \"%s\".", static_cast<std::uint32_t>(count), where, pattern);
}

}  // namespace

std::size_t CVendorInfoFile::Count() const noexcept { return Fields().size(); }

std::size_t CVendorInfoFile::Count(const char* pattern, const QuerySlots& query) const {
  return vif::FindFields(Searched(m_impl), CFieldQuery(pattern, query)).count;
}

VifFieldList CVendorInfoFile::GetFields() const { return MakeList(Fields()); }

VifFieldList CVendorInfoFile::GetFields(const char* pattern, const QuerySlots& query) const {
  CFieldQuery filter(pattern, query);
  std::vector<CVIFField> passing;
  vif::ForEachPassing(Searched(m_impl), filter, [&](const CVIFField& field) { passing.push_back(field); });
  return MakeList(std::move(passing));
}

CVIFField CVendorInfoFile::GetUniqueField(const char* pattern, const QuerySlots& query) const {
  const FoundFields found = vif::FindFields(Searched(m_impl), CFieldQuery(pattern, query));
  if (found.count == 0) {
    vif::ThrowRunTimeError("Couldn't find field in \"%s\" that matched with \"%s\".", WhereText(*this), pattern);
  }
  if (found.count > 1) ThrowTooMany(found.count, WhereText(*this), pattern);
  return *found.first;
}

std::tuple<CVIFField, bool> CVendorInfoFile::GetSingleField(const char* pattern, const QuerySlots& query) const {
  const FoundFields found = vif::FindFields(Searched(m_impl), CFieldQuery(pattern, query));
  if (found.count > 1) ThrowTooMany(found.count, WhereText(*this), pattern);
  if (found.count == 0) return {CVIFField(), false};
  return {*found.first, true};
}

// Looks at components 0 to ComponentCount() - 1 although they are numbered from 1, so the last one is never found. Test
// suites rely on what this returns.
VifFieldList CVendorInfoFile::GetFirstFields(const char* pattern, const VifIndex& index2,
                                             const VifIndex& index3) const {
  const CFieldQuery query(pattern, {CVIFField::UNSPECIFIED_INDEX, index2, index3});
  std::vector<CVIFField> first;
  for (const CVIFField* field : vif::FirstComponentFields(Fields(), ComponentCount(), query)) first.push_back(*field);
  return MakeList(std::move(first));
}

std::vector<std::size_t> FindVifFields(const CVendorInfoFile& vif, const char* pattern, const QuerySlots& query) {
  CFieldQuery filter(pattern, query);
  const CVIFField* begin = vif.Fields().data();
  std::vector<std::size_t> positions;
  vif::ForEachPassing(Searched(vif::CContentAccess::ContentOf(vif)), filter,
                      [&](const CVIFField& field) { positions.push_back(static_cast<std::size_t>(&field - begin)); });
  return positions;
}

std::vector<std::size_t> FindFirstVifFields(const CVendorInfoFile& vif, const char* pattern, const VifIndex& index2,
                                            const VifIndex& index3) {
  const CFieldQuery query(pattern, {CVIFField::UNSPECIFIED_INDEX, index2, index3});
  const CVIFField* begin = vif.Fields().data();
  std::vector<std::size_t> positions;
  for (const CVIFField* field : vif::FirstComponentFields(vif.Fields(), vif.ComponentCount(), query)) {
    positions.push_back(static_cast<std::size_t>(field - begin));
  }
  return positions;
}

CVIFField CVendorInfoFile::GetFirstUniqueField(const char* pattern, const VifIndex& index2,
                                               const VifIndex& index3) const {
  const VifFieldList found = GetFirstFields(pattern, index2, index3);
  // Unlike the other queries, this one puts the pattern in both places of the message and throws another exception when
  // it finds nothing. Callers depend on both.
  if (found->size() > 1) ThrowTooMany(found->size(), pattern != nullptr ? pattern : "(null)", pattern);
  if (found->empty()) throw std::out_of_range("invalid vector subscript");
  return found->front();
}

// The other forms of these queries.

std::size_t CVendorInfoFile::Count(const char* pattern, const VifIndex& index1, const VifIndex& index2,
                                   const VifIndex& index3) const {
  return Count(pattern, QuerySlots{index1, index2, index3});
}

std::size_t CVendorInfoFile::Count(const wchar_t* pattern, const VifIndex& index1, const VifIndex& index2,
                                   const VifIndex& index3) const {
  return Count(pattern, QuerySlots{index1, index2, index3});
}

std::size_t CVendorInfoFile::Count(const wchar_t* pattern, const QuerySlots& query) const {
  return Count(Narrow(pattern).c_str(), query);
}

std::size_t CVendorInfoFile::Count(std::nullptr_t, const VifIndex& index1, const VifIndex& index2,
                                   const VifIndex& index3) const {
  return Count(kAnyName, QuerySlots{index1, index2, index3});
}

std::size_t CVendorInfoFile::Count(std::nullptr_t, const QuerySlots& query) const { return Count(kAnyName, query); }

VifFieldList CVendorInfoFile::GetFields(const char* pattern, const VifIndex& index1, const VifIndex& index2,
                                        const VifIndex& index3) const {
  return GetFields(pattern, QuerySlots{index1, index2, index3});
}

VifFieldList CVendorInfoFile::GetFields(const wchar_t* pattern, const VifIndex& index1, const VifIndex& index2,
                                        const VifIndex& index3) const {
  return GetFields(pattern, QuerySlots{index1, index2, index3});
}

VifFieldList CVendorInfoFile::GetFields(const wchar_t* pattern, const QuerySlots& query) const {
  return GetFields(Narrow(pattern).c_str(), query);
}

VifFieldList CVendorInfoFile::GetFields(std::nullptr_t, const VifIndex& index1, const VifIndex& index2,
                                        const VifIndex& index3) const {
  return GetFields(kAnyName, QuerySlots{index1, index2, index3});
}

VifFieldList CVendorInfoFile::GetFields(std::nullptr_t, const QuerySlots& query) const {
  return GetFields(kAnyName, query);
}

CVIFField CVendorInfoFile::GetUniqueField(const char* pattern, const VifIndex& index1, const VifIndex& index2,
                                          const VifIndex& index3) const {
  return GetUniqueField(pattern, QuerySlots{index1, index2, index3});
}

CVIFField CVendorInfoFile::GetUniqueField(const wchar_t* pattern, const VifIndex& index1, const VifIndex& index2,
                                          const VifIndex& index3) const {
  return GetUniqueField(pattern, QuerySlots{index1, index2, index3});
}

CVIFField CVendorInfoFile::GetUniqueField(const wchar_t* pattern, const QuerySlots& query) const {
  return GetUniqueField(Narrow(pattern).c_str(), query);
}

CVIFField CVendorInfoFile::GetUniqueField(std::nullptr_t, const VifIndex& index1, const VifIndex& index2,
                                          const VifIndex& index3) const {
  return GetUniqueField(kAnyName, QuerySlots{index1, index2, index3});
}

CVIFField CVendorInfoFile::GetUniqueField(std::nullptr_t, const QuerySlots& query) const {
  return GetUniqueField(kAnyName, query);
}

std::tuple<CVIFField, bool> CVendorInfoFile::GetSingleField(const char* pattern, const VifIndex& index1,
                                                            const VifIndex& index2, const VifIndex& index3) const {
  return GetSingleField(pattern, QuerySlots{index1, index2, index3});
}

std::tuple<CVIFField, bool> CVendorInfoFile::GetSingleField(const wchar_t* pattern, const VifIndex& index1,
                                                            const VifIndex& index2, const VifIndex& index3) const {
  return GetSingleField(pattern, QuerySlots{index1, index2, index3});
}

std::tuple<CVIFField, bool> CVendorInfoFile::GetSingleField(const wchar_t* pattern, const QuerySlots& query) const {
  return GetSingleField(Narrow(pattern).c_str(), query);
}

std::tuple<CVIFField, bool> CVendorInfoFile::GetSingleField(std::nullptr_t, const VifIndex& index1,
                                                            const VifIndex& index2, const VifIndex& index3) const {
  return GetSingleField(kAnyName, QuerySlots{index1, index2, index3});
}

std::tuple<CVIFField, bool> CVendorInfoFile::GetSingleField(std::nullptr_t, const QuerySlots& query) const {
  return GetSingleField(kAnyName, query);
}

VifFieldList CVendorInfoFile::GetFirstFields(const wchar_t* pattern, const VifIndex& index2,
                                             const VifIndex& index3) const {
  return GetFirstFields(Narrow(pattern).c_str(), index2, index3);
}

VifFieldList CVendorInfoFile::GetFirstFields(std::nullptr_t, const VifIndex& index2, const VifIndex& index3) const {
  return GetFirstFields(kAnyName, index2, index3);
}

CVIFField CVendorInfoFile::GetFirstUniqueField(const wchar_t* pattern, const VifIndex& index2,
                                               const VifIndex& index3) const {
  return GetFirstUniqueField(Narrow(pattern).c_str(), index2, index3);
}

CVIFField CVendorInfoFile::GetFirstUniqueField(std::nullptr_t, const VifIndex& index2, const VifIndex& index3) const {
  return GetFirstUniqueField(kAnyName, index2, index3);
}

// The groups of a file.

VifFieldList CVendorInfoFile::GetComponent(VifIndexNumber component) const {
  return GetFields(kAnyName, VifIndex{eVifLocComponent, component}, CVIFField::UNSPECIFIED_INDEX,
                   CVIFField::UNSPECIFIED_INDEX);
}

VifFieldList CVendorInfoFile::GetRouter(VifIndexNumber router) const {
  return GetFields(kAnyName, VifIndex{eVifLocProduct, 0}, VifIndex{eVifLocRouter, router},
                   CVIFField::UNSPECIFIED_INDEX);
}

VifFieldList CVendorInfoFile::GetPcieEndpointIds(VifIndexNumber router, VifIndexNumber endpoint) const {
  return GetFields(kAnyName, VifIndex{eVifLocProduct, 0}, VifIndex{eVifLocRouter, router},
                   VifIndex{eVifLocRouterPcie, endpoint});
}

VifFieldList CVendorInfoFile::GetSrcPdo(VifIndexNumber component, VifIndexNumber pdo) const {
  return GetFields(kAnyName, VifIndex{eVifLocComponent, component}, VifIndex{eVifLocSrcPdo, pdo},
                   CVIFField::UNSPECIFIED_INDEX);
}

VifFieldList CVendorInfoFile::GetSnkPdo(VifIndexNumber component, VifIndexNumber pdo) const {
  return GetFields(kAnyName, VifIndex{eVifLocComponent, component}, VifIndex{eVifLocSnkPdo, pdo},
                   CVIFField::UNSPECIFIED_INDEX);
}

VifFieldList CVendorInfoFile::GetSopSvid(VifIndexNumber component, VifIndexNumber svid) const {
  return GetFields(kAnyName, VifIndex{eVifLocComponent, component}, VifIndex{eVifLocSopSvid, svid},
                   CVIFField::UNSPECIFIED_INDEX);
}

VifFieldList CVendorInfoFile::GetSopSvidMode(VifIndexNumber component, VifIndexNumber svid, VifIndexNumber mode) const {
  return GetFields(kAnyName, VifIndex{eVifLocComponent, component}, VifIndex{eVifLocSopSvid, svid},
                   VifIndex{eVifLocSopSvidMode, mode});
}

VifFieldList CVendorInfoFile::GetCableSvid(VifIndexNumber component, VifIndexNumber svid) const {
  return GetFields(kAnyName, VifIndex{eVifLocComponent, component}, VifIndex{eVifLocCableSvid, svid},
                   CVIFField::UNSPECIFIED_INDEX);
}

VifFieldList CVendorInfoFile::GetCableSvidMode(VifIndexNumber component, VifIndexNumber svid,
                                               VifIndexNumber mode) const {
  return GetFields(kAnyName, VifIndex{eVifLocComponent, component}, VifIndex{eVifLocCableSvid, svid},
                   VifIndex{eVifLocCableSvidMode, mode});
}
