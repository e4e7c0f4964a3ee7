// Loads files that take long, with an observer that sees how far loading is and may end it.
#pragma once

#include "VIFExport.h"

#include <cstdint>
#include <filesystem>
#include <functional>

class CVendorInfoFile;

/// Called while a file is loaded, on the thread that loads it, with how many bytes have been read and how many there
/// are, 0 when that is not known:
///
/// - with 0 before anything else, once it is known that the file exists, and of which form it is;
/// - for a text file, after a line for about every 64 kB;
/// - for an XML file, when it has been parsed and validated, which cannot be interrupted, and then after about every
///   1,000 fields, each time with the whole size;
/// - with the whole size at the end of reading.
///
/// Whatever it throws ends the loading and reaches the caller of the load. Fields read before that stay loaded, as
/// after any other failure.
using VifProgressObserver = std::function<void(std::uint64_t done, std::uint64_t total)>;

/// Loads a file and appends its fields, as `CVendorInfoFile::Append` does.
/// \param vif the object that receives the fields
/// \param file an empty path does nothing
/// \param progress may be empty
///
/// Throws what `CVendorInfoFile::Append` throws, and what the observer throws.
VIF_API void AppendVifFile(CVendorInfoFile& vif, const std::filesystem::path& file,
                           const VifProgressObserver& progress);
