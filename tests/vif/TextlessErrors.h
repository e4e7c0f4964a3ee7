// COM errors without a text from the system.
#pragma once

namespace testsupport {

/// While it lives, no COM error has a text.
class CTextlessErrors {
 public:
  CTextlessErrors();
  CTextlessErrors(const CTextlessErrors&) = delete;
  CTextlessErrors& operator=(const CTextlessErrors&) = delete;
  ~CTextlessErrors();
};

}  // namespace testsupport
