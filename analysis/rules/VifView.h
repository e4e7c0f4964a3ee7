// A file as the rules see it.
#pragma once

#include "rules/GroupView.h"
#include "rules/PdoView.h"

#include <analysis/Edition.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace vifanalysis {

class CVifView;

/// One component, with its PDOs in order. Its SVIDs are `Groups(eVifLocSopSvid)` and `Groups(eVifLocCableSvid)`, and
/// their modes are groups in these.
class CComponentView : public CGroupView {
 public:
  CComponentView(CGroupView group, const CVifView& file);

  /// The file that it is a part of.
  const CVifView& File() const { return *m_file; }

  /// The PDOs of a side in the order of their numbers.
  const std::vector<CPdoView>& Pdos(PdoSide side) const { return side == PdoSide::Source ? m_sourcePdos : m_sinkPdos; }

 private:
  const CVifView* m_file;
  std::vector<CPdoView> m_sourcePdos;
  std::vector<CPdoView> m_sinkPdos;
};

/// A file. It borrows the list of fields, and takes time and memory that grow with its length.
class CVifView {
 public:
  /// \param unsound fields of the list that are not to have a number; not kept
  explicit CVifView(const FoundFields& fields, const UnsoundFields& unsound = {});
  CVifView(const CVifView&) = delete;
  CVifView& operator=(const CVifView&) = delete;
  ~CVifView() = default;

  /// All fields in the order of the file.
  const FoundFields& Fields() const { return m_fields; }

  /// The file as a group: its fields in no group, and all groups.
  const CGroupView& Root() const { return m_root; }

  /// The edition of the format that the file names; nothing when it names none or several, or in an unknown form.
  const std::optional<Edition>& GetEdition() const { return m_edition; }

  /// A field about the file as a whole, or in no group at all, such as a text of a text file; null when there is none.
  const FoundField* FindHeader(std::string_view name) const;

  /// That field's number, as `CGroupView::Number` has it.
  std::optional<std::uint64_t> HeaderNumber(std::string_view name) const;

  /// The product; null when the file has no field of it. Its routers are `Groups(eVifLocRouter)`.
  const CGroupView* Product() const { return First(eVifLocProduct); }

  /// The components in the order of their numbers.
  const std::vector<CComponentView>& Components() const { return m_components; }

 private:
  const CGroupView* First(EVifLocation kind) const;

  const FoundFields& m_fields;
  CGroupView m_root;
  std::optional<Edition> m_edition;
  std::vector<CComponentView> m_components;
};

}  // namespace vifanalysis
