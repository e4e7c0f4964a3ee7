// What libxml2 may read while it compiles schemas.
#pragma once

#include "msxml/InputFile.h"

#include <libxml/parser.h>

#include <deque>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace msxml {

/// A file that was read, as it was then.
struct SchemaFile {
  std::filesystem::path path;
  CInputFile::Stamp stamp;
};

/// While it lives, what this thread has libxml2 load comes from regular files of this machine and from nowhere else;
/// other threads load as before. Only one may live at a time in the process.
class CSchemaLoader {
 public:
  /// \param replaced the URLs that stand for other files than those they name, and these files' URLs
  explicit CSchemaLoader(std::map<std::string, std::string> replaced = {});
  CSchemaLoader(const CSchemaLoader&) = delete;
  CSchemaLoader& operator=(const CSchemaLoader&) = delete;
  ~CSchemaLoader();

  /// The files read so far.
  const std::vector<SchemaFile>& Files() const { return m_files; }

  /// Why the schemas cannot be used: the first thing that was wrong, behind the name of its file. Empty when nothing
  /// was.
  const std::string& Failure() const { return m_failure; }

  /// Takes an error of libxml2's; of this thread's loader, wherever the callback comes from.
  static void ReportError(void* data, xmlErrorPtr error);

  bool IsOutOfMemory() const { return m_isOutOfMemory; }

 private:
  static xmlParserInputPtr Load(const char* url, const char* id, xmlParserCtxtPtr context);
  xmlParserInputPtr LoadFile(const std::string& url, xmlParserCtxtPtr context);
  std::string Place(const xmlError& error) const;
  void Fail(std::string reason);

  std::map<std::string, std::string> m_replaced;
  std::deque<CInputFile> m_open;  // libxml2 reads from them while it parses
  std::vector<SchemaFile> m_files;
  std::string m_failure;
  bool m_isOutOfMemory = false;
};

/// The URL of a file.
std::string FileUrl(const std::filesystem::path& file);

}  // namespace msxml
