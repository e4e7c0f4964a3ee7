// The library as a whole.
#include "Guard.h"
#include "Utf8.h"

#include <BaseUtilities/PathText.h>
#include <TestUtilities/DOMDoc.h>
#include <VIFLocations.h>

const char* vif_version(void) { return VIF_VERSION; }

const char* vif_location_name(int32_t location) { return GetVifLocInfo(static_cast<EVifLocation>(location)).name; }

vif_status vif_set_schema_directory(const char* path, vif_error** error) {
  return vifc::Guarded(error, [&] { CDOMDoc::SetSchemaDirectory(PathFromUtf8(path != nullptr ? path : "")); });
}
