// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <string>
#include <sys/types.h>

namespace quorvantis::test {

/// Whether a process exists and has not ended; an ended one may wait for its parent for a long time.
inline bool IsRunning(pid_t process) {
  std::ifstream in("/proc/" + std::to_string(process) + "/stat");
  std::string number;
  std::string name;  // in brackets; names of test programs contain no blanks
  char state = 'Z';
  return in >> number >> name >> state && state != 'Z';
}

}  // namespace quorvantis::test
