// SPDX-License-Identifier: MIT
#include "platform/posix/ApplicationFolder.h"

#include <cstdlib>
#include <unistd.h>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

fs::path FromEnvironment(const char* name) {
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing sets it
  return value == nullptr ? fs::path() : fs::path(value);
}

fs::path UserDataFolder() {
  const fs::path data = FromEnvironment("XDG_DATA_HOME");
  return data.is_absolute() ? data : FromEnvironment("HOME") / ".local" / "share";
}

}  // namespace

fs::path ExecutableFolder() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path();
}

fs::path FindApplicationFolder() {
  const fs::path portable = ExecutableFolder();
  if (!portable.empty() && ::access(portable.c_str(), W_OK) == 0) return portable;
  const fs::path folder = UserDataFolder() / "quorvantis";
  std::error_code ignored;
  fs::create_directories(folder, ignored);
  return folder;
}

}  // namespace quorvantis
