#include "files/Sentence.h"
#include "rules/FieldWords.h"
#include "rules/RuleFunctions.h"

#include <analysis/FieldText.h>

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::string_view kNames[] = {"Vendor_Name", "Model_Part_Number", "Product_Revision", "TID"};
constexpr std::string_view kIds[] = {
    "USB_VID_SOP", "PID_SOP", "Manufacturer_Info_VID_Port", "Manufacturer_Info_PID_Port",
    "USB_VID",     "PID",     "Manufacturer_Info_VID",      "Manufacturer_Info_PID",
};
constexpr std::string_view kTexts[] = {"FIX-ME", "FIXME", "FIX ME", "TBD", "TBA",     "TODO", "TO DO",
                                       "N/A",    "NA",    "NONE",   "XXX", "UNKNOWN", "...",  "?"};
constexpr std::string_view kTestIds[] = {"0", "1", "12345", "65535"};

bool IsIn(std::span<const std::string_view> list, std::string_view text) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::string_view Trimmed(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(" \t\r\n");
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(" \t\r\n") - begin + 1);
}

bool IsPlaceholder(std::string_view name, std::string_view text) {
  constexpr std::size_t longest = 8;  // of the texts
  if (text.starts_with('<') && text.ends_with('>')) return true;
  if (text.size() > longest) return false;
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), Upper);
  return IsIn(kTexts, upper) || (name == "TID" && IsIn(kTestIds, text));
}

bool IsPlaceholder(const FoundField& found) {
  const std::string_view written = found.field.Name();
  const std::string_view name = written.starts_with('$') ? written.substr(1) : written;
  if (IsIn(kNames, name)) return IsPlaceholder(name, Trimmed(TextOf(found)));
  if (!IsIn(kIds, name) || !HasNumber(found.field)) return false;
  constexpr std::uint64_t noId = 0xFFFF;
  const std::uint64_t id = found.field.GetULongNumericValue();
  return id == 0 || id == noId;
}

}  // namespace

void CheckPlaceholder(const CVifView& file, CReporter& reporter) {
  for (const FoundField& found : file.Fields()) {
    if (!IsPlaceholder(found) || reporter.HasFound("unanswered", found)) continue;
    reporter.Add(found, Quoted(found.field.Name())
                            .append(" is ")
                            .append(ValueInWords(found, file))
                            .append(", which looks like a placeholder"));
  }
}

}  // namespace vifanalysis
