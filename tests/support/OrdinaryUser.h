// Tests of permissions, which the superuser does not notice.
#pragma once

#include <unistd.h>
#include <cerrno>
#include <cstdlib>
#include <system_error>

namespace testsupport {

/// Takes the rights of the superuser away for a while; nothing happens to any other user.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    constexpr uid_t nobody = 65534;
    if (m_former == 0 && seteuid(nobody) != 0) throw std::system_error(errno, std::generic_category(), "seteuid");
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser(OrdinaryUser&&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(OrdinaryUser&&) = delete;
  ~OrdinaryUser() {
    if (geteuid() != m_former && seteuid(m_former) != 0) std::abort();
  }

 private:
  uid_t m_former = geteuid();
};

}  // namespace testsupport
