#include "VIFImpl.h"

#include "BaseUtilities/PathText.h"
#include "BaseUtilities/StringConvert.h"
#include "Errors.h"
#include "TextReader.h"
#include "XmlReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <system_error>
#include <utility>

namespace {

enum class FileType : std::uint32_t { None = 0, Text = 1, Xml = 2, Other = 3 };

/// Anything that exists passes, a directory included.
void RequireExistence(const std::filesystem::path& fileName) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(fileName, error);
  if (status.type() == std::filesystem::file_type::not_found) {
    vif::ThrowRunTimeError("VIF Does not exist. (name: %s)", PathToSystem(fileName));
  }
  if (!std::filesystem::status_known(status)) throw std::filesystem::filesystem_error("exists", fileName, error);
}

FileType DetermineFileType(const vif::CVifSource& source) {
  if (!source.IsInMemory()) {
    if (source.Name().empty()) return FileType::None;
    RequireExistence(source.Name());
  }
  std::string extension = PathToSystem(source.Name().extension());
  ToLower(extension);
  if (extension == ".txt") return FileType::Text;
  if (extension == ".xml") return FileType::Xml;
  return FileType::Other;
}

/// Makes room for about as many fields as a text file has, so that they are not moved repeatedly while it is read.
void ReserveForText(const vif::CVifSource& source, std::vector<CVIFField>& fields) {
  constexpr std::uintmax_t bytesPerField = 32;      // a short line; with comments it is about 50
  constexpr std::uintmax_t mostFields = 1'000'000;  // whatever size the file claims to have
  const std::optional<std::uintmax_t> size = source.Size();
  if (!size) return;
  try {
    fields.reserve(static_cast<std::size_t>(std::min(*size / bytesPerField, mostFields)));
  } catch (const std::bad_alloc&) {  // NOLINT(bugprone-empty-catch)
    // There may still be enough memory for the fields that the file really has.
  }
}

}  // namespace

CVIFImpl::CVIFImpl(const std::filesystem::path& fileName, std::vector<VifFieldDef>* fieldDefs)
    : m_fieldDefs(fieldDefs), m_fileName(PathToWide(fileName)) {
  Append(fileName);
}

void CVIFImpl::Append(const vif::CVifSource& source) {
  switch (const FileType type = DetermineFileType(source); type) {
    case FileType::None: break;
    case FileType::Text: ReadTextFile(source); break;
    case FileType::Xml: ReadXmlFile(source); break;
    case FileType::Other: vif::ThrowRunTimeError("Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)");
    default: vif::ThrowRunTimeError("%s: Internal error: unknown file type %u.", "CVIFImpl::Append", type);
  }
  m_digests.Cover(m_fields);
  if (m_fileName.empty()) m_fileName = PathToWide(source.Name());
}

void CVIFImpl::Append(const std::vector<CVIFField>& fields) {
  if (&fields == &m_fields) {
    Append(std::vector<CVIFField>(fields));  // a list cannot be inserted into itself
    return;
  }
  m_fields.insert(m_fields.end(), fields.begin(), fields.end());
  m_digests.Cover(m_fields);
}

void CVIFImpl::ReadTextFile(const vif::CVifSource& source) {
  if (m_fields.empty()) ReserveForText(source, m_fields);
  vif::ReadTextVif(source, m_fieldDefs, {m_fields, m_componentCount});
  // A file may consist almost entirely of something other than fields.
  if (m_fields.capacity() / 4 > m_fields.size()) m_fields.shrink_to_fit();
}

void CVIFImpl::ReadXmlFile(const vif::CVifSource& source) { vif::ReadXmlVif(source, {m_fields, m_componentCount}); }
