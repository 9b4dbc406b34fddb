// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Reads a regular file from start to end through one buffer of 512 KiB. The end is sticky: once more was
/// requested than there is, `Ended` stays true and every further read is empty, so decoding needs no check
/// after each field.
class ByteSource {
 public:
  static constexpr std::size_t kBufferSize = std::size_t{512} * 1024;
  static constexpr std::size_t kMaxTake = std::size_t{64} * 1024;

  /// Opens `file`; check IsOpen. Folders, devices and pipes cannot be opened.
  explicit ByteSource(const std::filesystem::path& file);

  bool IsOpen() const { return stream_.is_open(); }
  bool Ended() const { return ended_; }

  /// Bytes taken so far, and the size of the file when it was opened.
  std::uint64_t Position() const { return position_; }
  std::uint64_t Size() const { return size_; }

  /// The next `count` bytes (at most kMaxTake), or fewer at the end of the file. Valid until the next call.
  std::string_view Take(std::size_t count);

  /// The next `count` bytes without taking them, or fewer at the end of the file, which does not set `Ended`.
  std::string_view Peek(std::size_t count);

  /// Passes the next `count` bytes to `sink` in pieces no larger than the buffer, or skips them if `sink` is
  /// empty: many are not even read.
  void Take(std::uint64_t count, const std::function<void(std::string_view)>& sink);

 private:
  void Refill();
  std::uint64_t JumpOver(std::uint64_t count);

  std::ifstream stream_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;  ///< unread bytes of the buffer: [begin_, end_)
  std::size_t end_ = 0;
  std::uint64_t position_ = 0;
  std::uint64_t size_ = 0;
  bool ended_ = false;
};

}  // namespace quorvantis
