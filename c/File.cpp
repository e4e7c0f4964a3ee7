// Loading.
#include "File.h"

#include "Guard.h"
#include "Utf8.h"

#include <BaseUtilities/Exceptions.h>
#include <BaseUtilities/StringConvert.h>
#include <VIFContent.h>
#include <VIFInvalidFile.h>
#include <VIFProgress.h>
#include <analysis/Files.h>

#include <utility>
#include <vector>

namespace vifc {

namespace {

/// The status of a failure to load that only its message tells.
/// \param isInMemory whether no file was opened
vif_status LoadStatus(const std::filesystem::path& path, bool isInMemory) {
  if (!isInMemory && IsMissing(path)) return VIF_ERROR_NO_FILE;
  if (vifanalysis::HasExtension(path, ".xml")) return VIF_ERROR_SCHEMA;  // it admits what cannot be read
  if (!vifanalysis::HasExtension(path, ".txt")) return VIF_ERROR_FORM;
  return isInMemory ? VIF_ERROR_INTERNAL : VIF_ERROR_FILE;
}

/// Repairs the texts of the fields from a position on.
void Repair(FileContent& content, std::size_t from) {
  const std::vector<CVIFField>& fields = content.file.Fields();
  for (std::size_t i = from; i < fields.size(); ++i) {
    const CVIFField& field = fields[i];
    if (IsUtf8(field.Name()) && IsUtf8(field.Value()) && IsUtf8(field.Description())) continue;
    RepairedTexts texts = {field.Name(), field.Value(), field.Description()};
    MakeUtf8(texts.name);
    MakeUtf8(texts.value);
    MakeUtf8(texts.description);
    content.repaired.emplace(i, std::move(texts));
  }
}

/// Loads more into a file, which is unchanged if that fails.
/// \param isInMemory whether `load` opens no file
/// \param load gets what to load into and the observer, which is empty when nobody wants to know
template <typename Load>
void LoadInto(vif_file& handle, const std::filesystem::path& path, bool isInMemory, const vif_progress* given,
              const Load& load) {
  const CProgress progress(given);
  VifProgressObserver observer;
  if (progress.IsWanted()) observer = [&](std::uint64_t done, std::uint64_t total) { progress(done, total); };
  FileContent content = handle.content;
  try {
    load(content.file, observer);
  } catch (const CVIFInvalidFile& failure) {
    // To the reader of XML, what cannot be read is not valid either.
    if (isInMemory || !vifanalysis::IsReadFailure(path, failure.Problems())) throw;
    throw CFailure(VIF_ERROR_FILE, failure.Problems().front().reason);
  } catch (const CZoRunTimeException& failure) {
    throw CFailure(LoadStatus(path, isInMemory), failure.what());
  }
  Repair(content, handle.content.file.Count());
  content.name = Utf16ToUtf8(content.file.FileName());
  std::swap(handle.content, content);
}

}  // namespace

}  // namespace vifc

vif_status vif_file_make(vif_file** file, vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(file != nullptr, "there is nowhere to put the handle");
    *file = nullptr;
    *file = new vif_file;
  });
}

void vif_file_free(vif_file* file) { vifc::Free(file); }

vif_status vif_file_load(vif_file* file, const char* path, const vif_progress* progress, vif_error** error) {
  return vifc::Guarded(error, [&] {
    const vifc::CFileScope scope;
    vif_file& handle = vifc::Usable(file);
    const std::filesystem::path name = vifc::PathOf(path);
    vifc::LoadInto(handle, name, false, progress, [&](CVendorInfoFile& into, const VifProgressObserver& observer) {
      AppendVifFile(into, name, observer);
    });
  });
}

vif_status vif_file_load_bytes(vif_file* file, const void* bytes, size_t size, const char* name,
                               const vif_progress* progress, vif_error** error) {
  return vifc::Guarded(error, [&] {
    const vifc::CFileScope scope;
    vif_file& handle = vifc::Usable(file);
    const std::filesystem::path path = vifc::PathOf(name);
    const std::string_view content = vifc::ContentOf(bytes, size);
    vifc::LoadInto(handle, path, true, progress, [&](CVendorInfoFile& into, const VifProgressObserver& observer) {
      AppendVifContent(into, content, path, observer);
    });
  });
}

const char* vif_file_name(const vif_file* file) { return vifc::IsUsable(file) ? file->content.name.c_str() : ""; }

uint32_t vif_file_component_count(const vif_file* file) {
  return vifc::IsUsable(file) ? file->content.file.ComponentCount() : 0;
}
