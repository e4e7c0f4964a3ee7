#include "TextReader.h"

void CheckTextVif(const std::filesystem::path& fileName, const VifLineObserver& observer,
                  const std::vector<VifFieldDef>* fieldDefs) {
  std::vector<CVIFField> fields;
  std::uint32_t componentCount = 0;
  vif::ReadTextVif(fileName, fieldDefs, {fields, componentCount}, observer ? &observer : nullptr);
}
