// Reads VIFs that are in memory, such as a part of an archive or what came over a network.
//
// Each function does with bytes what another one does with a file of these bytes: the fields, reports, limits and
// errors are the same, except those of opening and reading a file. Nothing is written to disk.
//
// The name stands for the path. Messages contain it, and its extension decides, in any letter case, how the bytes are
// read: ".txt" as a text VIF, ".xml" as an XML VIF. It need not name a file, and no file of that name is looked at. The
// bytes are borrowed for the call; they may contain anything, NUL included, and may be of any number.
//
// The functions may be called from any number of threads at once, each with an object and observers of its own.
#pragma once

#include "VIFExport.h"
#include "VIFField.h"
#include "VIFFieldDefs.h"
#include "VIFProgress.h"
#include "VIFTextCheck.h"
#include "VIFXmlCheck.h"

#include <filesystem>
#include <string_view>
#include <vector>

class CVendorInfoFile;

/// Reads a VIF from memory and appends its fields to those that an object holds, as `CVendorInfoFile::Append` does. If
/// the object has no file name yet, it takes this name.
/// \param vif the object that receives the fields
/// \param content the bytes, borrowed for the call
/// \param name stands for the path
/// \param progress see `VifProgressObserver`; may be empty
///
/// Throws what `CVendorInfoFile::Append` throws for a file that exists; "Invalid file type for VIF!  Must be text
/// (*.txt) or XML (*.xml)" for an empty name, too.
VIF_API void AppendVifContent(CVendorInfoFile& vif, std::string_view content, const std::filesystem::path& name,
                              const VifProgressObserver& progress = nullptr);

/// Does what `CheckTextVif` does (VIFTextCheck.h), whatever the extension of the name. `eVifLineReadFailed` is never
/// reported.
VIF_API void CheckTextVifContent(std::string_view content, const std::filesystem::path& name,
                                 const VifLineObserver& observer, const std::vector<VifFieldDef>* fieldDefs = nullptr,
                                 const VifFieldObserver& fieldObserver = nullptr);

/// Does what `CheckXmlVif` does (VIFXmlCheck.h), whatever the extension of the name.
VIF_API void CheckXmlVifContent(std::string_view content, const std::filesystem::path& name,
                                const VifElementObserver& observer);
