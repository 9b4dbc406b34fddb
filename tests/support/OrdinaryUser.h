// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <unistd.h>

namespace quorvantis::test {

/// Makes a test that runs as root respect file permissions: meanwhile the process belongs to another user.
/// The real user changes too, since access() checks that one.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    if (wasRoot_ && (setresgid(kNobody, kNobody, 0) != 0 || setresuid(kNobody, kNobody, 0) != 0))
      std::abort();
  }
  ~OrdinaryUser() {
    if (wasRoot_ && (setresuid(0, 0, 0) != 0 || setresgid(0, 0, 0) != 0)) std::abort();
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;

  const bool wasRoot_ = geteuid() == 0;
};

}  // namespace quorvantis::test
