#include "VIFFieldDefs.h"

#include "KnownFields.h"

#include <string>
#include <string_view>

namespace {

/// The wide canonical names of all known fields, one after the other, each with its NUL.
class CNamePool {
 public:
  CNamePool() {
    // Reserved in full, because the definitions keep pointers into the text.
    size_t size = 0;
    for (const vif::KnownField& field : vif::KnownFields()) size += field.spelling.size() + 1;
    m_text.reserve(size);
  }

  const wchar_t* Add(std::string_view spelling) {
    const size_t begin = m_text.size();
    for (const char c : spelling) {
      if (c != vif::kIndexMark) m_text += static_cast<wchar_t>(c);
    }
    m_text += L'\0';
    return m_text.data() + begin;
  }

 private:
  std::wstring m_text;
};

std::wstring Widen(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

std::wstring PatternText(std::string_view spelling) {
  if (spelling == vif::kCableController) {
    return L"^(?:" + Widen(vif::kCableController) + L"|" + Widen(vif::kCableControllerWithPrimes) + L")$";
  }
  std::wstring pattern = L"^";
  for (const char c : spelling) {
    if (c == vif::kIndexMark) {
      pattern += L"([0-9]*)";
    } else {
      pattern += static_cast<wchar_t>(c);
    }
  }
  return pattern + L"$";
}

std::vector<VifFieldDef> BuildTable() {
  static CNamePool names;
  std::vector<VifFieldDef> table;
  table.reserve(vif::KnownFields().size());
  for (const vif::KnownField& field : vif::KnownFields()) {
    table.push_back({names.Add(field.spelling), std::wregex(PatternText(field.spelling)), field.locations});
  }
  return table;
}

}  // namespace

const std::vector<VifFieldDef>& VifFieldDefs::GetVifFieldDefs() {
  static const std::vector<VifFieldDef> table = BuildTable();
  return table;
}

namespace {

// Builds the table while the library is loaded, before any thread can ask for it. If there is no memory for that,
// loading fails, as it should.
// NOLINTNEXTLINE(cert-err58-cpp)
[[maybe_unused]] const std::vector<VifFieldDef>& builtAtLoad = VifFieldDefs::GetVifFieldDefs();

}  // namespace
