#include "Samples.h"

#include "VIFFieldDefs.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>

namespace bench {

namespace {

namespace fs = std::filesystem;

std::string ReadFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

/// The place of a field in the given round through all definitions.
std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH> Place(const VifFieldDef& definition, std::uint64_t round) {
  constexpr std::uint64_t components = 8;
  constexpr std::uint64_t groups = 7;
  std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH> place;
  place.fill(CVIFField::UNSPECIFIED_INDEX);
  for (std::size_t i = 0; i < place.size(); ++i) {
    const EVifLocation location = definition.locations[i];
    if (location == eVifLocUnset) continue;
    std::uint64_t number = 1 + round % groups;
    if (location == eVifLocComponent) number = 1 + round / groups % components;
    if (location <= eVifLocProduct) number = 0;
    place[i] = {location, number};
  }
  return place;
}

std::string NameOf(const VifFieldDef& definition) {
  const std::wstring name = definition.name;
  return {name.begin(), name.end()};
}

}  // namespace

void WriteFile(const fs::path& path, std::string_view content) {
  std::ofstream out(path, std::ios::binary);
  out.write(content.data(), static_cast<std::streamsize>(content.size()));
  out.close();
  if (!out) throw std::runtime_error("cannot write " + path.string());
}

CTempFile::CTempFile(std::string_view content, std::string_view extension)
    : m_path(fs::temp_directory_path() /
             std::string("vif-benchmark-").append(std::to_string(std::random_device()())).append(extension)) {
  WriteFile(m_path, content);
}

CTempFile::~CTempFile() {
  std::error_code ignored;
  fs::remove(m_path, ignored);
}

std::string TextVif(std::size_t lines) {
  const std::string example = ReadFile(fs::path(BENCH_EXAMPLES) / "dual-role-tablet.txt");
  std::string content;
  std::size_t begin = 0;
  for (; lines > 0; --lines) {
    const std::size_t end = example.find('\n', begin);
    content.append(example, begin, end + 1 - begin);
    begin = end + 1 < example.size() ? end + 1 : 0;
  }
  return content;
}

fs::path TwoPortLaptop() { return fs::path(BENCH_EXAMPLES) / "two-port-laptop.xml"; }

std::string XmlVif(std::size_t components) {
  const std::string laptop = ReadFile(TwoPortLaptop());
  constexpr std::string_view endTag = "</vif:Component>";
  const std::size_t begin = laptop.find("<vif:Component>");
  const std::size_t end = laptop.rfind(endTag) + endTag.size();
  std::string content = laptop.substr(0, begin);
  for (std::size_t i = 0; i < components; i += 2) content.append(laptop, begin, end - begin);
  return content.append(laptop, end);
}

std::vector<CVIFField> SampleFields(std::size_t count) {
  const std::vector<VifFieldDef>& definitions = VifFieldDefs::GetVifFieldDefs();
  std::vector<CVIFField> fields;
  fields.reserve(count);
  bool hasUnique = false;
  for (std::size_t i = 0; fields.size() < count; ++i) {
    const VifFieldDef& definition = definitions[i % definitions.size()];
    std::string name = NameOf(definition);
    if (name == kUniqueName) {
      // In the middle, so that neither the first nor the last fields decide.
      if (hasUnique || fields.size() < count / 2) continue;
      hasUnique = true;
    }
    fields.emplace_back(true, name, "1", std::string(), Place(definition, i / definitions.size()));
  }
  return fields;
}

}  // namespace bench
