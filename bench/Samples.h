// What the benchmarks load and query.
#pragma once

#include "VIFField.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// A file that exists for the duration of one benchmark.
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

/// \throws std::runtime_error if the file cannot be written
void WriteFile(const std::filesystem::path& path, std::string_view content);

/// A text VIF of that many lines: those of an example, repeated.
std::string TextVif(std::size_t lines);

/// The two-port laptop of the examples.
std::filesystem::path TwoPortLaptop();

/// An XML VIF with that many components, an even number: those of the laptop, repeated.
std::string XmlVif(std::size_t components);

/// The only field of `SampleFields` with that name.
constexpr const char* kUniqueName = "Connector_Type";

/// Fields with the names and places that the format defines, repeated in its order, in several components and groups.
std::vector<CVIFField> SampleFields(std::size_t count);

}  // namespace bench
