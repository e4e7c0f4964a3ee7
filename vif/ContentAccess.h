// For the functions beside `CVendorInfoFile`, which need what it holds.
#pragma once

#include "VIFImpl.h"
#include "VendorInfoFile.h"

namespace vif {

class CContentAccess {
 public:
  static CVIFImpl& ContentOf(CVendorInfoFile& file) { return file.Content(); }

  /// Null for an empty object that has never held anything.
  static const CVIFImpl* ContentOf(const CVendorInfoFile& file) { return file.m_impl; }
};

}  // namespace vif
