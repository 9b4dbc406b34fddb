// SPDX-License-Identifier: MIT
#include "platform/posix/ApplicationFolder.h"

#include "platform/posix/FileDescriptor.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
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

std::error_code TryWriting(const fs::path& folder) {
  constexpr std::size_t kRoom = std::size_t{64} * 1024;
  const auto lastError = [] { return std::error_code(errno, std::generic_category()); };
  std::string name = (folder / "~writable-XXXXXX").string();
  const FileDescriptor file(::mkostemp(name.data(), O_CLOEXEC));
  if (!file.IsOpen()) return lastError();
  ::unlink(name.c_str());
  const std::string content(kRoom, '\0');
  const ssize_t written = ::write(file.Get(), content.data(), content.size());
  if (written < 0) return lastError();
  return static_cast<std::size_t>(written) == kRoom ? std::error_code()
                                                    : std::make_error_code(std::errc::no_space_on_device);
}

}  // namespace quorvantis
