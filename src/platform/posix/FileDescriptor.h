// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>
#include <utility>

namespace quorvantis {

/// Owns an open file descriptor.
class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor = -1) : descriptor_(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~FileDescriptor() {
    if (IsOpen()) ::close(descriptor_);
  }

  bool IsOpen() const { return descriptor_ >= 0; }
  int Get() const { return descriptor_; }

 private:
  int descriptor_;
};

}  // namespace quorvantis
