// Texts for other programs, and parts of files.
#include "Differences.h"
#include "File.h"
#include "Findings.h"
#include "Guard.h"
#include "Text.h"
#include "Utf8.h"

#include <analysis/SourceLine.h>
#include <analysis/Writers.h>

#include <memory>
#include <utility>

namespace vifc {

namespace {

/// Makes a text of what `write` passes to the sink that it gets.
template <typename Write>
vif_status GiveDocument(vif_text** text, vif_error** error, const Write& write) {
  return Guarded(error, [&] {
    Require(text != nullptr, "there is nowhere to put the text");
    *text = nullptr;
    std::string document;
    write([&](std::string_view part) { document += part; });
    *text = new vif_text(std::move(document));
  });
}

}  // namespace

}  // namespace vifc

vif_status vif_file_json(const vif_file* file, const char* const* names, size_t name_count, vif_text** text,
                         vif_error** error) {
  return vifc::GiveDocument(text, error, [&](const vifanalysis::TextSink& sink) {
    const CVendorInfoFile& content = vifc::Usable(file).content.file;
    vifanalysis::WriteFieldsAsJson(vifc::TextsOf(names, name_count, "name"), content.ComponentCount(), content.Fields(),
                                   sink);
  });
}

vif_status vif_file_csv(const vif_file* file, vif_text** text, vif_error** error) {
  return vifc::GiveDocument(text, error, [&](const vifanalysis::TextSink& sink) {
    vifanalysis::WriteFieldsAsCsv(vifc::Usable(file).content.file.Fields(), sink);
  });
}

vif_status vif_findings_json(const vif_findings* findings, const char* name, vif_text** text, vif_error** error) {
  return vifc::GiveDocument(text, error, [&](const vifanalysis::TextSink& sink) {
    vifc::Require(name != nullptr, "the name is NULL");
    const std::vector<vifanalysis::FileFindings> files = {{name, vifc::Usable(findings).list}};
    vifanalysis::WriteFindingsAsJson(files, sink);
  });
}

vif_status vif_differences_json(const vif_differences* differences, const char* before, const char* after,
                                const vif_findings* fixed, const vif_findings* added, vif_text** text,
                                vif_error** error) {
  return vifc::GiveDocument(text, error, [&](const vifanalysis::TextSink& sink) {
    vifc::Require(before != nullptr && after != nullptr, "a name is NULL");
    vifanalysis::FileComparison comparison = {before, after, vifc::Usable(differences).content, {}};
    if (fixed != nullptr) comparison.findings.fixed = vifc::Usable(fixed).list;
    if (added != nullptr) comparison.findings.added = vifc::Usable(added).list;
    vifanalysis::WriteComparisonAsJson(comparison, sink);
  });
}

vif_status vif_source_line(const void* bytes, size_t size, uint64_t line, uint64_t column, vif_text** before,
                           vif_text** after, vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(before != nullptr && after != nullptr, "there is nowhere to put the texts");
    *before = *after = nullptr;
    // No place is beyond the end of what is in memory.
    const auto place = [size](uint64_t number) { return static_cast<std::size_t>(number <= size ? number : size + 1); };
    vifanalysis::SourceLine found =
        vifanalysis::FindSourceLine(vifc::ContentOf(bytes, size), place(line), place(column));
    auto first = std::make_unique<vif_text>(std::move(found.before));
    *after = new vif_text(std::move(found.after));
    *before = first.release();
  });
}
