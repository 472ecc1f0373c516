#pragma once

#include <cstdlib>

#include <unistd.h>

namespace velmar::storage {

/// While it lives, permissions hold for this process, also where the tests are run by the superuser.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    constexpr uid_t kNobody = 65534;
    if (before_ == 0) changed_ = ::seteuid(kNobody) == 0;
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() {
    if (changed_ && ::seteuid(before_) != 0) std::abort();
  }

 private:
  uid_t before_ = ::geteuid();
  bool changed_ = false;
};

}  // namespace velmar::storage
