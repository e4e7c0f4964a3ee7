// What the benchmarks load and query.
#pragma once

#include "VIFField.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// A file for the time of one benchmark.
class CTempFile {
 public:
  /// \param extension with its dot
  CTempFile(std::string_view content, std::string_view extension);
  CTempFile(const CTempFile&) = delete;
  CTempFile& operator=(const CTempFile&) = delete;
  ~CTempFile();

  const std::filesystem::path& Path() const { return m_path; }

 private:
  std::filesystem::path m_path;
};

/// \throws std::runtime_error when the file cannot be written
void WriteFile(const std::filesystem::path& path, std::string_view content);

/// A text VIF of that many lines: those of an example, over and over.
std::string TextVif(std::size_t lines);

/// The two-port laptop of the examples.
std::filesystem::path TwoPortLaptop();

/// An XML VIF of that many components, which must be even: those of the laptop, over and over.
std::string XmlVif(std::size_t components);

/// The only field of `SampleFields` with that name.
constexpr const char* kUniqueName = "Connector_Type";

/// Fields with the names and places that the format defines, in its order over and over, of several components and
/// groups.
std::vector<CVIFField> SampleFields(std::size_t count);

}  // namespace bench
