#include "VifSource.h"

#include "DOMDocVIF.h"
#include "TextFile.h"

#include <system_error>

namespace vif {

std::optional<std::uintmax_t> CVifSource::Size() const {
  if (m_content) return m_content->size();
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(m_name, error);
  return error ? std::nullopt : std::optional(size);
}

std::unique_ptr<std::istream> CVifSource::OpenText() const {
  return m_content ? OpenTextContent(*m_content) : OpenTextFile(m_name);
}

bool CVifSource::ValidateIn(CDOMDocVIF& document) const {
  return m_content ? document.ValidateContent(*m_content) : document.ValidateDoc(m_name);
}

}  // namespace vif
