#include "TextContent.h"
#include "TextFile.h"
#include "xmlfile/InputFile.h"

#include <cstddef>
#include <streambuf>

namespace vif {

namespace {

/// Odd on purpose. Some files that the kernel makes up, such as /proc/self/pagemap, look regular, go on for hundreds of
/// gigabytes, and can only be read in whole records: with an odd size, reading them fails at once.
constexpr std::size_t kChunkSize = 8191;

/// Reads a file that has been checked to be a regular one. The standard library's file buffer would open the name again
/// and wait for ever if a pipe had taken the file's place.
class CFileBuffer : public std::streambuf {
 public:
  explicit CFileBuffer(const std::filesystem::path& path) : m_file(path) {}

  bool IsOpen() const { return m_file.IsOpen(); }

 protected:
  int_type underflow() override {
    if (gptr() == egptr()) {
      const int count = xmlfile::CInputFile::Read(&m_file, m_chunk, kChunkSize);
      if (count < 0) throw std::ios_base::failure(m_file.Error());  // the stream turns it into `badbit`
      setg(m_chunk, m_chunk, m_chunk + count);
    }
    return gptr() != egptr() ? traits_type::to_int_type(*gptr()) : traits_type::eof();
  }

 private:
  xmlfile::CInputFile m_file;
  char m_chunk[kChunkSize] = {};
};

/// A stream with its buffer.
class CFileStream : public std::istream {
 public:
  explicit CFileStream(const std::filesystem::path& path) : std::istream(nullptr), m_buffer(path) { rdbuf(&m_buffer); }

  bool IsOpen() const { return m_buffer.IsOpen(); }

 private:
  CFileBuffer m_buffer;
};

}  // namespace

std::unique_ptr<std::istream> OpenTextFile(const std::filesystem::path& path) {
  auto stream = std::make_unique<CFileStream>(path);
  if (!stream->IsOpen()) return nullptr;
  return stream;
}

std::unique_ptr<std::istream> OpenTextContent(std::string_view content) {
  return std::make_unique<CContentStream>(content);
}

}  // namespace vif
