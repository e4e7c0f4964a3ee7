// Loading by functions beside CVendorInfoFile.
#include "ContentAccess.h"
#include "VIFContent.h"
#include "VIFProgress.h"

void AppendVifFile(CVendorInfoFile& vif, const std::filesystem::path& file, const VifProgressObserver& progress) {
  vif::CContentAccess::ContentOf(vif).Append(vif::CVifSource(file, &progress));
}

void AppendVifContent(CVendorInfoFile& vif, std::string_view content, const std::filesystem::path& name,
                      const VifProgressObserver& progress) {
  vif::CContentAccess::ContentOf(vif).Append(vif::CVifSource(content, name, &progress));
}
