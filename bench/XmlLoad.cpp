// Loading XML VIFs with schemas already compiled, compared with a floor: libxml2 only parses and validates the same
// file, with its schema already compiled.
#include "LoadWork.h"
#include "Samples.h"
#include "Subjects.h"
#include "VendorInfoFile.h"

#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace bench {

namespace {

template <typename Object, void (*Free)(Object*)>
struct Freeing {
  void operator()(Object* object) const { Free(object); }
};
using Document = std::unique_ptr<xmlDoc, Freeing<xmlDoc, xmlFreeDoc>>;
using Schema = std::unique_ptr<xmlSchema, Freeing<xmlSchema, xmlSchemaFree>>;
using SchemaParser = std::unique_ptr<xmlSchemaParserCtxt, Freeing<xmlSchemaParserCtxt, xmlSchemaFreeParserCtxt>>;
using Validator = std::unique_ptr<xmlSchemaValidCtxt, Freeing<xmlSchemaValidCtxt, xmlSchemaFreeValidCtxt>>;

Schema CompileSchema() {
  const SchemaParser parser(xmlSchemaNewParserCtxt(BENCH_SCHEMA));
  return Schema(xmlSchemaParse(parser.get()));
}

void LoadWarm(benchmark::State& state, const std::filesystem::path& path) {
  benchmark::DoNotOptimize(CVendorInfoFile(path).Count());
  LoadOver(state, path);
}

void ParseAndValidate(benchmark::State& state, const std::filesystem::path& path) {
  static const Schema schema = CompileSchema();
  while (state.KeepRunning()) {
    const Document document(xmlReadFile(path.c_str(), nullptr, XML_PARSE_NONET));
    const Validator validator(xmlSchemaNewValidCtxt(schema.get()));
    if (xmlSchemaValidateDoc(validator.get(), document.get()) != 0) throw std::runtime_error("the file is not valid");
  }
}

using LoadFile = void (*)(benchmark::State& state, const std::filesystem::path& path);

Work OnComponents(LoadFile load, std::size_t components) {
  return [=](benchmark::State& state) {
    const CTempFile file(XmlVif(components), ".xml");
    load(state, file.Path());
  };
}

}  // namespace

void AddXmlLoad(CRatioTable& table) {
  const std::string floor("`xmlReadFile` and `xmlSchemaValidateDoc`");
  table.AddPair({"xml/2", "load the XML VIF of the two-port laptop", floor, AtMost(1.15)}, OnComponents(LoadWarm, 2),
                OnComponents(ParseAndValidate, 2));
  table.AddPair({"xml/200", "load an XML VIF of 200 components", floor, AtMost(1.15)}, OnComponents(LoadWarm, 200),
                OnComponents(ParseAndValidate, 200));
}

}  // namespace bench
