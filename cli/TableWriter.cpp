#include "Columns.h"
#include "Writers.h"

#include <analysis/FieldText.h>
#include <analysis/Text.h>

namespace cli {

using vifanalysis::LocationText;
using vifanalysis::Printable;

void WriteTable(const CVendorInfoFile& vif) {
  CColumns table;
  table.Add({"LOCATION", "NAME", "VALUE", "DESCRIPTION"});
  for (const CVIFField& field : vif.Fields()) {
    const std::string value = Printable(field.Value());
    table.Add({LocationText(field), Printable(field.Name()), field.IsNumeric() ? value : '"' + value + '"',
               Printable(field.Description())});
  }
  table.Write();
}

}  // namespace cli
