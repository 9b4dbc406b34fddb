// SPDX-License-Identifier: MIT
#pragma once

#include "support/TemporaryFolder.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace quorvantis::test {

/// A separate disk of `kibibytes` (4 at least) that only this process sees: it is full for every writer and
/// every way of writing. Requires root, or a system where users can create namespaces, which only a
/// single-threaded process can do.
class TinyDisk {
 public:
  explicit TinyDisk(std::size_t kibibytes) {
    static const bool alone = Isolate();
    mounted_ = alone && Mount(kibibytes, 0);
  }
  ~TinyDisk() {
    if (mounted_) ::umount2(folder_.Path().c_str(), MNT_DETACH);
  }
  TinyDisk(const TinyDisk&) = delete;
  TinyDisk& operator=(const TinyDisk&) = delete;

  /// False if such a disk cannot be made: then skip the test.
  bool Works() const { return mounted_; }

  const std::filesystem::path& Path() const { return folder_.Path(); }
  std::filesystem::path operator/(const std::filesystem::path& name) const { return folder_ / name; }

  /// As if other programs wrote or removed files: leaves this much free space.
  void Leave(std::size_t kibibytes) {
    struct statvfs disk {};
    ::statvfs(folder_.Path().c_str(), &disk);
    const std::size_t used = (disk.f_blocks - disk.f_bfree) * disk.f_frsize / 1024;
    mounted_ = Mount(used + kibibytes, MS_REMOUNT);
  }

 private:
  static void Write(const char* file, const std::string& text) { std::ofstream(file) << text << std::flush; }

  /// From now on mounts of this process do not affect others.
  static bool Isolate() {
    const std::string user = std::to_string(::geteuid());
    const std::string group = std::to_string(::getegid());
    if (::unshare(CLONE_NEWNS) != 0) {
      if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
      Write("/proc/self/setgroups", "deny");
      Write("/proc/self/uid_map", user + " " + user + " 1");
      Write("/proc/self/gid_map", group + " " + group + " 1");
    }
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
  }

  bool Mount(std::size_t kibibytes, unsigned long flags) {
    const std::string options = "mode=0777,size=" + std::to_string(kibibytes) + "k";
    return ::mount("none", folder_.Path().c_str(), "tmpfs", flags, options.c_str()) == 0;
  }

  TemporaryFolder folder_;
  bool mounted_ = false;
};

}  // namespace quorvantis::test
