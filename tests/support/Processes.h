// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <string>
#include <sys/types.h>

namespace quorvantis::test {

/// Whether a process is there and has not ended; one that has may wait for long until its parent notices.
inline bool IsRunning(pid_t process) {
  std::ifstream in("/proc/" + std::to_string(process) + "/stat");
  std::string number;
  std::string name;  // in brackets; programs of tests have no blanks in it
  char state = 'Z';
  return in >> number >> name >> state && state != 'Z';
}

}  // namespace quorvantis::test
