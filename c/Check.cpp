// Checks.
#include "Findings.h"
#include "Guard.h"
#include "Utf8.h"

#include <BaseUtilities/Exceptions.h>
#include <analysis/Check.h>
#include <analysis/Files.h>

#include <functional>
#include <memory>
#include <utility>

namespace vifc {

namespace {

using vifanalysis::CheckOptions;
using vifanalysis::Finding;

CheckOptions OptionsOf(const vif_check_options* given) {
  const vif_check_options options = TakeIn(given);
  return {options.notes != 0, TextsOf(options.only, options.only_count, "code"),
          TextsOf(options.except, options.except_count, "code")};
}

/// The status of a failure to check that only its message tells.
vif_status CheckStatus(const std::filesystem::path& path, bool isInMemory) {
  if (!isInMemory && IsMissing(path)) return VIF_ERROR_NO_FILE;
  const bool hasForm = vifanalysis::HasExtension(path, ".txt") || vifanalysis::HasExtension(path, ".xml");
  if (!hasForm) return VIF_ERROR_FORM;
  return isInMemory ? VIF_ERROR_INTERNAL : VIF_ERROR_FILE;
}

/// \param check gets the path and the options
template <typename Check>
vif_status GiveFindings(const char* name, bool isInMemory, const vif_check_options* options, const vif_progress* given,
                        const Check& check, vif_findings** findings, vif_error** error) {
  return Guarded(error, [&] {
    Require(findings != nullptr, "there is nowhere to put the findings");
    *findings = nullptr;
    const CFileScope scope;
    const std::filesystem::path path = PathOf(name);
    const CProgress progress(given);
    progress(0, 1);
    std::unique_ptr<vif_findings> made;
    try {
      made = std::make_unique<vif_findings>(check(path, OptionsOf(options)));
    } catch (const vifanalysis::CCheckError& failure) {
      throw CFailure(CheckStatus(path, isInMemory), failure.what());
    } catch (const CZoRunTimeException& failure) {  // it cannot be opened
      throw CFailure(CheckStatus(path, isInMemory), failure.what());
    }
    progress(1, 1);
    *findings = made.release();
  });
}

std::vector<Finding> Repaired(std::vector<Finding> findings) {
  for (Finding& finding : findings) {
    MakeUtf8(finding.element);
    MakeUtf8(finding.message);
  }
  return findings;
}

static_assert(int{VIF_SEVERITY_NOTE} == static_cast<int>(vifanalysis::Severity::Note));
static_assert(VIF_NO_POSITION == Finding::kNoPosition);
static_assert(int{VIF_SEVERITY_ERROR} == static_cast<int>(vifanalysis::Severity::Error));

}  // namespace

}  // namespace vifc

vif_findings::vif_findings(std::vector<vifanalysis::Finding> found) : list(vifc::Repaired(std::move(found))) {}

vif_status vif_check_file(const char* path, const vif_check_options* options, const vif_progress* progress,
                          vif_findings** findings, vif_error** error) {
  const auto check = [](const std::filesystem::path& file, const vifc::CheckOptions& wanted) {
    return vifanalysis::CheckFile(file, wanted);
  };
  return vifc::GiveFindings(path, false, options, progress, check, findings, error);
}

vif_status vif_check_bytes(const void* bytes, size_t size, const char* name, const vif_check_options* options,
                           const vif_progress* progress, vif_findings** findings, vif_error** error) {
  const auto check = [&](const std::filesystem::path& file, const vifc::CheckOptions& wanted) {
    return vifanalysis::CheckContent(vifc::ContentOf(bytes, size), file, wanted);
  };
  return vifc::GiveFindings(name, true, options, progress, check, findings, error);
}

size_t vif_findings_count(const vif_findings* findings) { return vifc::IsUsable(findings) ? findings->list.size() : 0; }

vif_status vif_findings_get(const vif_findings* findings, size_t position, vif_finding* finding) {
  if (const vif_status status = vifc::StatusOf(findings); status != VIF_OK) return status;
  if (position >= findings->list.size()) return VIF_ERROR_ARGUMENT;
  const vifanalysis::Finding& found = findings->list[position];
  vif_finding filled = {};
  filled.code = found.code.c_str();
  filled.element = found.element.c_str();
  filled.message = found.message.c_str();
  filled.line = found.line;
  filled.column = found.column;
  filled.position = found.position;
  filled.severity = static_cast<int32_t>(found.severity);
  return vifc::HandOut(filled, finding);
}

void vif_findings_free(vif_findings* findings) { vifc::Free(findings); }
