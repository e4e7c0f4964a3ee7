// XML VIFs as short text.
#pragma once

#include <string>

namespace testsupport {

/// An XML VIF with that content in its root element and the prefixes `vif` and `opt`.
inline std::string XmlVif(const std::string& content) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
         "<vif:VIF xmlns:vif=\"http://usb.org/VendorInfoFile.xsd\""
         " xmlns:opt=\"http://usb.org/VendorInfoFileOptionalContent.xsd\">\n" +
         content + "\n</vif:VIF>\n";
}

}  // namespace testsupport
