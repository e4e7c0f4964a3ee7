// The root element of a document.
#pragma once

#include <string>

namespace xmlfile {

struct Root {
  std::string name;  ///< local name
  std::string uri;   ///< the namespace; empty if none
};

}  // namespace xmlfile
