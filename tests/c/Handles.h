// Handles of the C interface that free themselves, and its structures as values.
#pragma once

#include "vif.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace testsupport {

template <auto FreeHandle>
struct Freeing {
  template <typename Handle>
  void operator()(Handle* handle) const {
    FreeHandle(handle);
  }
};

using FilePointer = std::unique_ptr<vif_file, Freeing<vif_file_free>>;
using PositionsPointer = std::unique_ptr<vif_positions, Freeing<vif_positions_free>>;
using FindingsPointer = std::unique_ptr<vif_findings, Freeing<vif_findings_free>>;
using DifferencesPointer = std::unique_ptr<vif_differences, Freeing<vif_differences_free>>;
using PortsPointer = std::unique_ptr<vif_ports, Freeing<vif_ports_free>>;
using TextPointer = std::unique_ptr<vif_text, Freeing<vif_text_free>>;
using ExplanationPointer = std::unique_ptr<vif_explanation, Freeing<vif_explanation_free>>;

/// Receives an error and frees it.
class CError {
 public:
  CError() = default;
  CError(const CError&) = delete;
  CError& operator=(const CError&) = delete;
  ~CError() { vif_error_free(m_error); }

  /// For a call to put an error into.
  vif_error** Receive() {
    vif_error_free(m_error);
    m_error = nullptr;
    return &m_error;
  }

  const vif_error* Get() const { return m_error; }
  vif_status Status() const { return vif_error_status(m_error); }
  std::string Message() const { return vif_error_message(m_error); }

 private:
  vif_error* m_error = nullptr;
};

inline FilePointer MakeFile() {
  vif_file* file = nullptr;
  EXPECT_EQ(vif_file_make(&file, nullptr), VIF_OK);
  return FilePointer(file);
}

inline vif_status LoadBytes(vif_file* file, std::string_view bytes, const char* name, vif_error** error = nullptr) {
  return vif_file_load_bytes(file, bytes.data(), bytes.size(), name, nullptr, error);
}

/// A file with that content.
inline FilePointer FileOf(std::string_view bytes, const char* name = "a.txt") {
  FilePointer file = MakeFile();
  EXPECT_EQ(LoadBytes(file.get(), bytes, name), VIF_OK);
  return file;
}

/// A structure with its size set.
template <typename Structure>
Structure Sized() {
  Structure structure = {};
  structure.size = sizeof(Structure);
  return structure;
}

inline vif_field FieldAt(const vif_file* file, std::size_t position) {
  auto field = Sized<vif_field>();
  EXPECT_EQ(vif_file_field(file, position, &field), VIF_OK);
  return field;
}

/// A field as `FieldText` shows one: `name=value ; description @6.1`.
inline std::string CFieldText(const vif_field& field) {
  const std::string quote = field.is_numeric != 0 ? "" : "\"";
  std::string text = std::string(field.name) + "=" + quote + field.value + quote;
  if (*field.description != '\0') text += std::string(" ; ") + field.description;
  for (const vif_index& index : field.indexes) {
    if (index.location == VIF_LOCATION_UNSET) continue;
    text += " @" + std::to_string(index.location) + ".";
    text += index.number == VIF_ANY_NUMBER ? "-" : std::to_string(index.number);
  }
  return text;
}

inline std::vector<std::string> CFieldTexts(const vif_file* file) {
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < vif_file_field_count(file); ++i) texts.push_back(CFieldText(FieldAt(file, i)));
  return texts;
}

inline vif_finding FindingAt(const vif_findings* findings, std::size_t position) {
  auto finding = Sized<vif_finding>();
  EXPECT_EQ(vif_findings_get(findings, position, &finding), VIF_OK);
  return finding;
}

inline FindingsPointer Check(std::string_view bytes, const char* name, const vif_check_options* options = nullptr) {
  vif_findings* findings = nullptr;
  EXPECT_EQ(vif_check_bytes(bytes.data(), bytes.size(), name, options, nullptr, &findings, nullptr), VIF_OK);
  return FindingsPointer(findings);
}

}  // namespace testsupport
