// One HTML page that shows what a VIF declares, or how two differ.
//
//     const CVendorInfoFile vif("charger.xml");
//     const auto findings = vifanalysis::CheckFile("charger.xml", {.notes = true});
//     const std::string page = vifanalysis::MakeReport({"charger.xml", vif.Fields(), findings});
//
// The page is complete in itself: it makes no request, and its content security policy forbids any. Texts from the file
// are shown as text, whatever they contain. It can be read without a script; only its filter needs one.
#pragma once

#include <VIFField.h>
#include <analysis/Export.h>
#include <analysis/Finding.h>

#include <span>
#include <string>

namespace vifanalysis {

/// A file for a report. It borrows the lists.
struct ReportedFile {
  std::string name;                   ///< what to call the file, in any bytes
  std::span<const CVIFField> fields;  ///< all fields, as loading the file yields them
  std::span<const Finding> findings;  ///< what checking the file found, in the order to show
};

/// A page about one file, in UTF-8. The same fields and findings always give the same page. May be called from any
/// number of threads at once.
/// \throws std::bad_alloc
VIF_ANALYSIS_API std::string MakeReport(const ReportedFile& file);

/// A page about two files, side by side, with the differences marked.
VIF_ANALYSIS_API std::string MakeReport(const ReportedFile& before, const ReportedFile& after);

}  // namespace vifanalysis
