// Restricts what libxml2 may read while it compiles schemas.
#pragma once

#include "libxml2/Errors.h"
#include "xmlfile/InputFile.h"

#include <libxml/parser.h>

#include <deque>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace libxml2 {

/// A file that was read, and its state at that time.
struct SchemaFile {
  std::filesystem::path path;
  xmlfile::CInputFile::Stamp stamp;
};

/// While it lives, whatever libxml2 loads on this thread comes from regular local files only; other threads load as
/// before. Only one may exist at a time in the process.
class CSchemaLoader {
 public:
  /// \param replaced URLs to load from other files than those they name, each with the URL of the file to use
  explicit CSchemaLoader(std::map<std::string, std::string> replaced = {});
  CSchemaLoader(const CSchemaLoader&) = delete;
  CSchemaLoader& operator=(const CSchemaLoader&) = delete;
  ~CSchemaLoader();

  /// The files read so far.
  const std::vector<SchemaFile>& Files() const { return m_files; }

  /// Why the schemas cannot be used: the first error, after the name of its file. Empty if there was none.
  const std::string& Failure() const { return m_failure; }

  /// Receives a libxml2 error for this thread's loader, whatever data the callback passes.
  static void ReportError(void* data, ErrorPointer error);

  bool IsOutOfMemory() const { return m_isOutOfMemory; }

 private:
  static xmlParserInputPtr Load(const char* url, const char* id, xmlParserCtxtPtr context);
  xmlParserInputPtr LoadFile(const std::string& url, xmlParserCtxtPtr context);
  std::string Place(const xmlError& error) const;
  void Fail(std::string reason);

  std::map<std::string, std::string> m_replaced;
  std::deque<xmlfile::CInputFile> m_open;  // libxml2 reads from them while it parses
  std::vector<SchemaFile> m_files;
  std::string m_failure;
  bool m_isOutOfMemory = false;
};

/// The URL of a file.
std::string FileUrl(const std::filesystem::path& file);

}  // namespace libxml2
