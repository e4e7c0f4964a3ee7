// What a file handle holds.
#pragma once

#include "Handle.h"
#include "vif.h"

#include <VendorInfoFile.h>

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace vifc {

/// The texts of a field of which one is not UTF-8, repaired.
struct RepairedTexts {
  std::string name;
  std::string value;
  std::string description;
};

/// The fields of the files loaded so far, as the caller gets them.
struct FileContent {
  CVendorInfoFile file;
  std::string name;                               // of the first file
  std::map<std::size_t, RepairedTexts> repaired;  // by position
};

}  // namespace vifc

struct vif_file : vifc::CHandle<vifc::HandleKind::File> {
  vifc::FileContent content;
};
