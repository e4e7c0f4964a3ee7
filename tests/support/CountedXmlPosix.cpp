// The functions with which libxml2 allocates. What it does when its own memory runs out is its affair, so none of these
// fails; but what it holds is counted, so that documents and schemas that are not freed are seen.
#include "support/CountedMemory.h"

#include <libxml/parser.h>
#include <libxml/xmlmemory.h>

#include <cstdlib>
#include <cstring>

namespace {

void* Allocate(std::size_t size) { return testsupport::CountHeld(std::malloc(size)); }

void* Reallocate(void* memory, std::size_t size) {
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
