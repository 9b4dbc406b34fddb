// SPDX-License-Identifier: MIT
#include "platform/posix/PosixFiles.h"

#include "platform/FolderEntries.h"
#include "platform/posix/FileDescriptor.h"
#include "platform/posix/Leftover.h"
#include "platform/posix/WriteBehind.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

std::error_code LastError() {
  return {errno, std::generic_category()};
}

std::error_code WriteAll(int descriptor, std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return LastError();
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return {};
}

std::error_code Sync(int descriptor) {
  return ::fsync(descriptor) == 0 ? std::error_code() : LastError();
}

/// Makes a renamed file's new name durable. Some file systems cannot; the content is safe anyway.
void SyncFolder(const fs::path& folder) {
  const FileDescriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.IsOpen()) ::fsync(descriptor.Get());
}

/// A file of this process under a unique name; deleted, also by a signal, unless it is renamed.
class ScratchFile {
 public:
  /// `stem` should be short; it only helps a person who finds the file after a power cut.
  static std::optional<ScratchFile> Create(const fs::path& folder, const std::string& stem) {
    constexpr int kTries = 100;
    const SignalsHeld held;
    for (int i = 0; i < kTries; ++i) {
      const fs::path path =
          folder / ("." + stem + "." + std::to_string(::getpid()) + "-" + std::to_string(i) + ".tmp");
      FileDescriptor descriptor(::open(path.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0666));
      if (descriptor.IsOpen()) return ScratchFile(path, std::move(descriptor));
      if (errno != EEXIST) break;
    }
    return std::nullopt;
  }
  ScratchFile(ScratchFile&& other) noexcept
      : path_(std::exchange(other.path_, {})),
        descriptor_(std::move(other.descriptor_)),
        leftover_(std::move(other.leftover_)) {}
  ScratchFile& operator=(ScratchFile&&) = delete;
  ~ScratchFile() {
    if (!path_.empty()) ::unlink(path_.c_str());
  }

  int Descriptor() const { return descriptor_.Get(); }

  /// From now on it may hold the only copy: a signal does not remove it.
  void OutliveSignals() { leftover_.reset(); }

  std::error_code RenameTo(const fs::path& target) {
    if (std::rename(path_.c_str(), target.c_str()) != 0) return LastError();
    path_.clear();
    leftover_.reset();
    return {};
  }

 private:
  ScratchFile(fs::path path, FileDescriptor descriptor)
      : path_(std::move(path)),
        descriptor_(std::move(descriptor)),
        leftover_(std::make_unique<Leftover>(path_)) {}

  fs::path path_;
  FileDescriptor descriptor_;
  std::unique_ptr<Leftover> leftover_;
};

class PosixPendingFile : public PendingFile {
 public:
  PosixPendingFile(ScratchFile scratch, fs::path target)
      : scratch_(std::move(scratch)), target_(std::move(target)) {}

  std::error_code Write(std::span<const std::byte> bytes) override {
    if (!error_) error_ = WriteAll(scratch_.Descriptor(), bytes);
    if (!error_) error_ = writeBehind_.Written(scratch_.Descriptor(), bytes.size());
    return error_;
  }

  std::error_code Commit() override {
    if (!error_) error_ = Finish();
    return error_;
  }

  void KeepOldFile() override { keepsOldFile_ = true; }

 protected:
  virtual std::error_code Finish() = 0;

  bool KeepsOldFile() const { return keepsOldFile_; }

  ScratchFile scratch_;
  const fs::path target_;

 private:
  WriteBehind writeBehind_;
  std::error_code error_;
  bool keepsOldFile_ = false;
};

/// Gives a file its backup name as a second name. In two steps, since a link replaces nothing.
void LinkBackup(const fs::path& file) {
  fs::path backup = file;
  backup += kBackupSuffix;
  const fs::path link = file.parent_path() / (".quorvantis." + std::to_string(::getpid()) + "-old.tmp");
  const Leftover leftover(link);
  ::unlink(link.c_str());
  if (::link(file.c_str(), link.c_str()) != 0) return;
  std::rename(link.c_str(), backup.c_str());
  ::unlink(link.c_str());  // still there when it is the backup already, or when that cannot be replaced
}

/// The usual way: rename in one folder.
class RenamedFile : public PosixPendingFile {
  using PosixPendingFile::PosixPendingFile;

  std::error_code Finish() override {
    if (const auto error = Sync(scratch_.Descriptor())) return error;
    if (KeepsOldFile()) LinkBackup(target_);
    if (const auto error = scratch_.RenameTo(target_)) return error;
    SyncFolder(target_.parent_path());
    return {};
  }
};

/// For a writable file in a read-only folder: copies the complete content over the old one.
class OverwrittenFile : public PosixPendingFile {
  using PosixPendingFile::PosixPendingFile;

  std::error_code Finish() override {
    const FileDescriptor target(::open(target_.c_str(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW));
    if (!target.IsOpen()) return LastError();
    const off_t size = ::lseek(scratch_.Descriptor(), 0, SEEK_END);
    if (const auto error = Reserve(target.Get(), size)) return error;
    scratch_.OutliveSignals();
    if (const auto error = CopyTo(target.Get())) return error;
    if (::ftruncate(target.Get(), size) != 0) return LastError();
    return Sync(target.Get());
  }

  /// Reserves the disk space now, while the old content is intact.
  static std::error_code Reserve(int descriptor, off_t size) {
    struct stat old {};
    if (::fstat(descriptor, &old) != 0) return LastError();
    if (size <= old.st_size) return {};
    const int failure = ::posix_fallocate(descriptor, 0, size);
    if (failure == 0 || failure == EOPNOTSUPP || failure == EINVAL) return {};
    if (::ftruncate(descriptor, old.st_size) != 0) return LastError();
    return {failure, std::generic_category()};
  }

  std::error_code CopyTo(int descriptor) {
    std::array<std::byte, std::size_t{64} * 1024> buffer;
    WriteBehind writeBehind;
    if (::lseek(scratch_.Descriptor(), 0, SEEK_SET) != 0) return LastError();
    while (true) {
      const ssize_t count = ::read(scratch_.Descriptor(), buffer.data(), buffer.size());
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return LastError();
      if (count == 0) return {};
      const auto piece = std::span(buffer).first(static_cast<std::size_t>(count));
      if (const auto error = WriteAll(descriptor, piece)) return error;
      if (const auto error = writeBehind.Written(descriptor, piece.size())) return error;
    }
  }
};

/// The target of the links that start at `path`; the last name need not exist. A circle of links ends at one
/// of them.
fs::path FollowLinks(fs::path path) {
  constexpr int kMaxLinks = 40;
  std::error_code ignored;
  for (int i = 0; i < kMaxLinks && IsLink(path); ++i) {
    path = path.parent_path() / fs::read_symlink(path, ignored);
  }
  return path;
}

/// Gives a new file the permissions, and where allowed the owner, of the old one.
void TakeOverPermissions(int descriptor, const struct stat& old) {
  if (::fchown(descriptor, old.st_uid, old.st_gid) != 0) errno = 0;
  if (::fchmod(descriptor, old.st_mode & 0777) != 0) errno = 0;
}

}  // namespace

std::unique_ptr<PendingFile> PosixFiles::Replace(const fs::path& target, std::error_code& error) {
  const fs::path path = FollowLinks(fs::absolute(target, error));
  struct stat old {};
  const bool exists = ::stat(path.c_str(), &old) == 0;
  if (exists && !S_ISREG(old.st_mode)) {
    error =
        std::make_error_code(S_ISDIR(old.st_mode) ? std::errc::is_a_directory : std::errc::invalid_argument);
    return nullptr;
  }
  if (IsLink(path)) {
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return nullptr;
  }
  if (exists && ::access(path.c_str(), W_OK) != 0) {  // a rename would ignore that it is read-only
    error = LastError();
    return nullptr;
  }
  if (auto scratch = ScratchFile::Create(path.parent_path(), "quorvantis")) {
    if (exists) TakeOverPermissions(scratch->Descriptor(), old);
    return std::make_unique<RenamedFile>(*std::move(scratch), path);
  }
  error = LastError();
  if (!exists) return nullptr;
  std::error_code noFolder;
  auto scratch = ScratchFile::Create(fs::temp_directory_path(noFolder), "quorvantis");
  if (!scratch) return nullptr;
  error.clear();
  return std::make_unique<OverwrittenFile>(*std::move(scratch), path);
}

}  // namespace quorvantis
