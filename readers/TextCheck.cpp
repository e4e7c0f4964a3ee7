#include "TextReader.h"

void CheckTextVif(const std::filesystem::path& fileName, const VifLineObserver& observer,
                  const std::vector<VifFieldDef>* fieldDefs, const VifFieldObserver& fieldObserver) {
  vif::FollowTextVif(fileName, fieldDefs, {observer, fieldObserver});
}
