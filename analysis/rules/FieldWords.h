// Fields and their values in the sentences of findings.
#pragma once

#include "rules/VifView.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vifanalysis {

/// What a number of the field with that name stands for: "YES", "3 (Provider Only)", "0xE94D" or "33 W"; the number
/// alone when that is not known.
std::string NumberInWords(const CVifView& file, std::string_view name, std::uint64_t number);

/// What a field says: its number in words, or its text in quotes where it has no number.
std::string ValueInWords(const FoundField& found, const CVifView& file);

/// Such as "Captive_Cable is YES".
std::string FieldIs(const FoundField& found, const CVifView& file);

/// Such as "Captive_Cable is YES" or "PID_SOP is missing".
std::string FieldIs(const CGroupView& group, std::string_view name, const CVifView& file);
std::string FieldIs(const CComponentView& component, std::string_view name);

/// Such as "PD_Port_Type 3 (Provider Only)", of a field that is there.
std::string NameAndValue(const CComponentView& component, std::string_view name);

/// What one finding is about: fields, and groups of fields. No name occurs twice.
class CMentions {
 public:
  /// The field of that name, if the group has it.
  void AddField(const CGroupView& group, std::string_view name);

  /// All fields of the group whose names have that beginning, except the one named `except`.
  void AddFields(const CGroupView& group, std::string_view beginning, std::string_view except = {});

  /// A group, if it has a field, or what it stands for.
  void AddGroup(const CGroupView& group, std::string_view name);

  /// A field under a name of its own.
  void Add(const FoundField& found, std::string_view name);

  bool IsEmpty() const { return m_names.empty(); }
  std::size_t Size() const { return m_names.size(); }

  /// The one that is first in the file; there must be one.
  const FoundField& First() const { return *m_mentions.begin()->first; }

  /// "A", "A and B", "A, B and C", in the order of the file; of many, the first ones and "and 7 more".
  std::string InWords() const;

 private:
  std::set<std::string, std::less<>> m_names;
  std::set<std::pair<const FoundField*, std::string>> m_mentions;  // all fields of a file are in one list
};

}  // namespace vifanalysis
