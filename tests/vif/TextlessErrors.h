// COM errors for which the system has no text.
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
