// The functions with which libxml2 allocates, and those in which it does not bear that memory runs out.
#include "support/FailingXml.h"

#include "support/CountedMemory.h"

#include <dlfcn.h>
#include <libxml/parser.h>
#include <libxml/xmlmemory.h>
#include <libxml/xmlschemas.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <cstdlib>
#include <cstring>
#include <utility>

namespace {

bool g_isSpared = false;

bool MustFail() { return !g_isSpared && testsupport::MustFail(testsupport::Memory::LibXml); }

void* Allocate(std::size_t size) {
  if (MustFail()) return nullptr;
  return testsupport::CountHeld(std::malloc(size));
}

void* Reallocate(void* memory, std::size_t size) {
  if (MustFail()) return nullptr;
  void* moved = std::realloc(memory, size);
  return memory == nullptr ? testsupport::CountHeld(moved) : moved;
}

char* Duplicate(const char* text) {
  const std::size_t size = std::strlen(text) + 1;
  void* copy = Allocate(size);
  return copy != nullptr ? static_cast<char*>(std::memcpy(copy, text, size)) : nullptr;
}

void Release(void* memory) {
  testsupport::CountReleased(memory);
  std::free(memory);
}

// Before the program begins, and with that before libxml2 has allocated anything. libxml2 takes the thread that comes
// first for the main one, whose last error is kept until the process ends; so that must be no thread of an attempt.
[[maybe_unused]] const bool isSet = [] {
  const int result = xmlMemSetup(Release, Allocate, Reallocate, Duplicate);
  xmlInitParser();
  return result == 0;
}();

}  // namespace

namespace testsupport {

CSparedXml::CSparedXml() : m_before(std::exchange(g_isSpared, true)) {}

CSparedXml::~CSparedXml() { g_isSpared = m_before; }

}  // namespace testsupport

// In these, libxml2 2.9.14 itself goes wrong when it gets no memory, with nothing of this project's on the stack above
// it. They stand in front of libxml2's own, which they call while its allocations succeed; those of the functions that
// they call back are not spared.

#define SPARED __attribute__((visibility("default")))

/// Loses the value of an attribute that there is no memory to list.
extern "C" SPARED int xmlSchemaValidateDoc(xmlSchemaValidCtxtPtr context, xmlDocPtr document) {
  static const auto real = reinterpret_cast<decltype(&xmlSchemaValidateDoc)>(dlsym(RTLD_NEXT, "xmlSchemaValidateDoc"));
  const testsupport::CSparedXml spared;
  return real(context, document);
}

/// Loses pieces of the schemas.
extern "C" SPARED xmlSchemaPtr xmlSchemaParse(xmlSchemaParserCtxtPtr context) {
  static const auto real = reinterpret_cast<decltype(&xmlSchemaParse)>(dlsym(RTLD_NEXT, "xmlSchemaParse"));
  const testsupport::CSparedXml spared;
  return real(context);
}

/// Loses the copy of the namespace that there is no memory to list.
extern "C" SPARED int xmlXPathRegisterNs(xmlXPathContextPtr context, const xmlChar* prefix, const xmlChar* uri) {
  static const auto real = reinterpret_cast<decltype(&xmlXPathRegisterNs)>(dlsym(RTLD_NEXT, "xmlXPathRegisterNs"));
  const testsupport::CSparedXml spared;
  return real(context, prefix, uri);
}

/// Frees the parser's context twice ("unknown:item[1]") and loses the compiled pattern of a path ("//" and a star).
extern "C" SPARED xmlXPathObjectPtr xmlXPathEvalExpression(const xmlChar* expression, xmlXPathContextPtr context) {
  static const auto real =
      reinterpret_cast<decltype(&xmlXPathEvalExpression)>(dlsym(RTLD_NEXT, "xmlXPathEvalExpression"));
  const testsupport::CSparedXml spared;
  return real(expression, context);
}
