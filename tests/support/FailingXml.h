// What of libxml2's memory does not run out.
#pragma once

namespace testsupport {

/// While it lives, no allocation of libxml2's fails.
class CSparedXml {
 public:
  CSparedXml();
  CSparedXml(const CSparedXml&) = delete;
  CSparedXml& operator=(const CSparedXml&) = delete;
  ~CSparedXml();

 private:
  bool m_before;
};

}  // namespace testsupport
