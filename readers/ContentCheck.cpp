#include "TextReader.h"
#include "VIFContent.h"
#include "XmlReader.h"

void CheckTextVifContent(std::string_view content, const std::filesystem::path& name, const VifLineObserver& observer,
                         const std::vector<VifFieldDef>* fieldDefs, const VifFieldObserver& fieldObserver) {
  vif::FollowTextVif(vif::CVifSource(content, name), fieldDefs, {observer, fieldObserver});
}

void CheckXmlVifContent(std::string_view content, const std::filesystem::path& name,
                        const VifElementObserver& observer) {
  vif::FollowXmlVif(vif::CVifSource(content, name), observer);
}
