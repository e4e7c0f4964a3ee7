// The content of a CVendorInfoFile.
#pragma once

#include "FieldDigest.h"
#include "VIFField.h"
#include "VIFFieldDefs.h"
#include "VifSource.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

/// The fields of all files loaded so far, and what loading the next one needs.
class CVIFImpl {
 public:
  CVIFImpl() = default;

  /// Remembers the file's name and loads the file.
  CVIFImpl(const std::filesystem::path& fileName, std::vector<VifFieldDef>* fieldDefs);

  /// Loads one file, or bytes that stand for one, and appends its fields. After a failure, what was read before it
  /// stays.
  void Append(const vif::CVifSource& source);

  /// Appends copies of the fields. When that fails, some may have been appended.
  void Append(const std::vector<CVIFField>& fields);

  const std::vector<CVIFField>& Fields() const { return m_fields; }
  const vif::CFieldDigests& Digests() const { return m_digests; }
  const std::wstring& FileName() const { return m_fileName; }
  std::uint32_t ComponentCount() const { return m_componentCount; }

 private:
  void ReadTextFile(const vif::CVifSource& source);
  void ReadXmlFile(const vif::CVifSource& source);

  std::vector<CVIFField> m_fields;
  vif::CFieldDigests m_digests;                     // of all fields but those read before a failure
  std::vector<VifFieldDef>* m_fieldDefs = nullptr;  // not owned; null means the built-in table
  std::wstring m_fileName;                          // of the first file
  std::uint32_t m_componentCount = 0;
};
