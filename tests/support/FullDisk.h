// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace quorvantis::test {

/// While this exists, no file of this process can grow beyond `bytes`, as if the disk were full. Unlike
/// TinyDisk it works everywhere, but with another error.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
};

}  // namespace quorvantis::test
