// A plug-in that uses the library.
#include "BaseUtilities/Exceptions.h"
#include "VIFExport.h"
#include "VendorInfoFile.h"

#include <cstddef>
#include <cstdint>

#ifdef _WIN32
#define PLUGIN_API __declspec(dllexport)
#else
#define PLUGIN_API VIF_API
#endif

// They are odr-used, so that the plug-in has them for itself, as any program may.
namespace {
const std::uint32_t& g_unset = CVIFField::VIF_VALUE_UNSET;
const VifIndex& g_any = CVIFField::UNSPECIFIED_INDEX;
}  // namespace

/// The number of fields in a file that have that name and a number; 0 also when the file cannot be loaded.
extern "C" PLUGIN_API std::size_t CountNumbers(const char* file, const char* pattern) {
  try {
    const CVendorInfoFile vif(file);
    const VifFieldList fields = vif.GetFields(pattern, g_any, g_any, g_any);
    std::size_t count = 0;
    for (const CVIFField& field : *fields) count += std::size_t{field.GetNumericValue() != g_unset};
    return count;
  } catch (const CZoException&) {
    return 0;
  }
}
