// For tests of permissions, which do not bind the superuser.
#pragma once

#include <unistd.h>
#include <cerrno>
#include <cstdlib>
#include <system_error>

namespace testsupport {

/// Drops superuser rights while it lives; does nothing for any other user.
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
