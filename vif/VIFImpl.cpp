#include "VIFImpl.h"

#include "BaseUtilities/PathText.h"
#include "BaseUtilities/StringConvert.h"
#include "Errors.h"
#include "TextReader.h"
#include "XmlReader.h"

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

FileType DetermineFileType(const std::filesystem::path& fileName) {
  if (fileName.empty()) return FileType::None;
  RequireExistence(fileName);
  std::string extension = PathToSystem(fileName.extension());
  ToLower(extension);
  if (extension == ".txt") return FileType::Text;
  if (extension == ".xml") return FileType::Xml;
  return FileType::Other;
}

}  // namespace

CVIFImpl::CVIFImpl(const std::filesystem::path& fileName, std::vector<VifFieldDef>* fieldDefs)
    : m_fieldDefs(fieldDefs), m_fileName(PathToWide(fileName)) {
  Append(fileName);
}

void CVIFImpl::Append(const std::filesystem::path& fileName) {
  switch (const FileType type = DetermineFileType(fileName); type) {
    case FileType::None: break;
    case FileType::Text: ReadTextFile(fileName); break;
    case FileType::Xml: ReadXmlFile(fileName); break;
    case FileType::Other: vif::ThrowRunTimeError("Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)");
    default: vif::ThrowRunTimeError("%s: Internal error: unknown file type %u.", "CVIFImpl::Append", type);
  }
  if (m_fileName.empty()) m_fileName = PathToWide(fileName);
}

void CVIFImpl::Append(const std::vector<CVIFField>& fields) {
  if (&fields == &m_fields) {
    Append(std::vector<CVIFField>(fields));  // a list cannot be inserted into itself
    return;
  }
  m_fields.insert(m_fields.end(), fields.begin(), fields.end());
}

void CVIFImpl::ReadTextFile(const std::filesystem::path& fileName) {
  vif::ReadTextVif(fileName, m_fieldDefs, {m_fields, m_componentCount});
}

void CVIFImpl::ReadXmlFile(const std::filesystem::path& fileName) {
  vif::ReadXmlVif(fileName, {m_fields, m_componentCount});
}
