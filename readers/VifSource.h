// Where a VIF is read from.
#pragma once

#include "VIFProgress.h"

#include <cstdint>
#include <filesystem>
#include <istream>
#include <memory>
#include <optional>
#include <string_view>

class CDOMDocVIF;

namespace vif {

/// A file, or bytes in memory that are read as a file of that content would be. Borrows everything for one read.
class CVifSource {
 public:
  /// \param progress receives how far reading is; null or empty for nobody
  // Not explicit, because most callers have nothing but a path.
  CVifSource(const std::filesystem::path& file, const VifProgressObserver* progress = nullptr)
      : m_name(file), m_progress(progress) {}

  /// \param name stands for the path in messages, and its extension for the form
  CVifSource(std::string_view content, const std::filesystem::path& name, const VifProgressObserver* progress = nullptr)
      : m_name(name), m_content(content), m_progress(progress) {}

  const std::filesystem::path& Name() const { return m_name; }
  bool IsInMemory() const { return m_content.has_value(); }

  /// In bytes; nothing when it is not known.
  std::optional<std::uintmax_t> Size() const;

  /// \return null when the file cannot be opened or is not a regular file
  std::unique_ptr<std::istream> OpenText() const;

  /// Loads it into a document and validates that.
  bool ValidateIn(CDOMDocVIF& document) const;

  /// Receives how far reading is; null for nobody.
  const VifProgressObserver* Progress() const { return m_progress != nullptr && *m_progress ? m_progress : nullptr; }

 private:
  const std::filesystem::path& m_name;
  std::optional<std::string_view> m_content;  // nothing for a file
  const VifProgressObserver* m_progress;
};

}  // namespace vif
