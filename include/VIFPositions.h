// Queries that tell where fields are, for callers that do not want copies of them.
#pragma once

#include "VIFExport.h"
#include "VIFField.h"

#include <array>
#include <cstddef>
#include <vector>

class CVendorInfoFile;

/// The positions in `CVendorInfoFile::Fields()` of the fields that `CVendorInfoFile::GetFields` copies, in rising
/// order.
/// \param vif the object to search
/// \param pattern UTF-8; null or empty matches any name
/// \param query the three slots, as for `CVIFField::Match`
///
/// Throws what `CVendorInfoFile::GetFields` throws.
VIF_API std::vector<std::size_t> FindVifFields(const CVendorInfoFile& vif, const char* pattern,
                                               const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query);

/// The same for `CVendorInfoFile::GetFirstFields`.
VIF_API std::vector<std::size_t> FindFirstVifFields(const CVendorInfoFile& vif, const char* pattern,
                                                    const VifIndex& index2, const VifIndex& index3);
