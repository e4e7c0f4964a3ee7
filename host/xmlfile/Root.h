// The root element of a document.
#pragma once

#include <string>

namespace xmlfile {

struct Root {
  std::string name;  ///< without prefix
  std::string uri;   ///< the namespace; empty for none
};

}  // namespace xmlfile
