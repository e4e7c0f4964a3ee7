// Reports.
#include "File.h"
#include "Findings.h"
#include "Guard.h"
#include "Text.h"

#include <analysis/Report.h>

#include <memory>

namespace vifc {

namespace {

vifanalysis::ReportedFile FileOf(const vif_reported_file& given) {
  const vif_reported_file taken = TakeIn(&given);
  const FileContent& content = Usable(taken.file).content;
  vifanalysis::ReportedFile file;
  file.name = taken.name != nullptr ? taken.name : content.name;
  file.fields = content.file.Fields();
  if (taken.findings != nullptr) file.findings = Usable(taken.findings).list;
  return file;
}

}  // namespace

}  // namespace vifc

vif_status vif_report(const vif_reported_file* file, const vif_reported_file* after, const vif_progress* progress,
                      vif_text** page, vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(page != nullptr, "there is nowhere to put the page");
    *page = nullptr;
    vifc::Require(file != nullptr, "the file is NULL");
    const vifanalysis::ReportedFile first = vifc::FileOf(*file);
    const vifc::CProgress report(progress);
    report(0, 1);
    auto made = std::make_unique<vif_text>(after != nullptr ? vifanalysis::MakeReport(first, vifc::FileOf(*after))
                                                            : vifanalysis::MakeReport(first));
    report(1, 1);
    *page = made.release();
  });
}
