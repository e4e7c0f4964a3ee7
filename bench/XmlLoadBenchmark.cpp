// How the cost of loading an XML VIF grows with its components. Beside it, in the same run, a floor: libxml2 parsing
// and validating the same file with schemas that are compiled already, and nothing else.
#include <VendorInfoFile.h>

#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>

namespace {

/// The two-port laptop with its components repeated, in a file that is removed at the end.
class SampleFile {
 public:
  explicit SampleFile(std::int64_t components)
      : m_path(std::filesystem::temp_directory_path() /
               ("vif-benchmark-" + std::to_string(std::random_device()()) + ".xml")) {
    std::ifstream in(BENCHMARK_VIF, std::ios::binary);
    const std::string laptop(std::istreambuf_iterator<char>(in), {});
    const std::string endTag = "</vif:Component>";
    const std::size_t begin = laptop.find("<vif:Component>");
    const std::size_t end = laptop.rfind(endTag) + endTag.size();
    std::ofstream out(m_path, std::ios::binary);
    out << laptop.substr(0, begin);
    for (std::int64_t i = 0; i < components; i += 2) out << laptop.substr(begin, end - begin);
    out << laptop.substr(end);
  }
  ~SampleFile() { std::filesystem::remove(m_path); }
  SampleFile(const SampleFile&) = delete;
  SampleFile& operator=(const SampleFile&) = delete;

  const std::filesystem::path& Path() const { return m_path; }

 private:
  std::filesystem::path m_path;
};

template <typename Object, void (*Free)(Object*)>
struct Freeing {
  void operator()(Object* object) const { Free(object); }
};
using Document = std::unique_ptr<xmlDoc, Freeing<xmlDoc, xmlFreeDoc>>;
using Schema = std::unique_ptr<xmlSchema, Freeing<xmlSchema, xmlSchemaFree>>;
using SchemaParser = std::unique_ptr<xmlSchemaParserCtxt, Freeing<xmlSchemaParserCtxt, xmlSchemaFreeParserCtxt>>;
using Validator = std::unique_ptr<xmlSchemaValidCtxt, Freeing<xmlSchemaValidCtxt, xmlSchemaFreeValidCtxt>>;

void LoadXmlVif(benchmark::State& state) {
  const SampleFile file(state.range(0));
  for (auto _ : state) {
    const CVendorInfoFile vif(file.Path());
    benchmark::DoNotOptimize(vif.Count());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void ParseAndValidate(benchmark::State& state) {
  const SampleFile file(state.range(0));
  const SchemaParser parser(xmlSchemaNewParserCtxt(BENCHMARK_SCHEMA));
  const Schema schema(xmlSchemaParse(parser.get()));
  for (auto _ : state) {
    const Document document(xmlReadFile(file.Path().c_str(), nullptr, XML_PARSE_NONET));
    const Validator validator(xmlSchemaNewValidCtxt(schema.get()));
    if (xmlSchemaValidateDoc(validator.get(), document.get()) != 0) state.SkipWithError("the file is not valid");
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(LoadXmlVif)->Arg(2)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(ParseAndValidate)->Arg(2)->Arg(200)->Unit(benchmark::kMillisecond);

}  // namespace
