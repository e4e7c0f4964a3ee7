#include "MemoryFile.h"

#include "Checks.h"

#include <string>

#include <sys/mman.h>
#include <unistd.h>

namespace fuzz {

CMemoryFile::CMemoryFile()
    : m_descriptor(memfd_create("fuzzed", MFD_CLOEXEC)), m_path("/proc/self/fd/" + std::to_string(m_descriptor)) {
  Require(m_descriptor >= 0, "a file in memory can be created");
}

CMemoryFile::~CMemoryFile() { close(m_descriptor); }

void CMemoryFile::Write(std::string_view content) const {
  Require(ftruncate(m_descriptor, 0) == 0, "a file in memory can be emptied");
  const ssize_t written = pwrite(m_descriptor, content.data(), content.size(), 0);
  Require(written == static_cast<ssize_t>(content.size()), "a file in memory can be written");
}

}  // namespace fuzz
