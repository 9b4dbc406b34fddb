// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A regular file read from front to back through one buffer of 512 KiB. Its end is sticky: once more was
/// asked for than there is, `Ended` stays true and everything further is empty, so decoding needs no check
/// after each field.
class ByteSource {
 public:
  static constexpr std::size_t kBufferSize = std::size_t{512} * 1024;
  static constexpr std::size_t kMaxTake = std::size_t{64} * 1024;

  /// Opens `file`; check IsOpen. Folders, devices and pipes do not open.
  explicit ByteSource(const std::filesystem::path& file);

  bool IsOpen() const { return stream_.is_open(); }
  bool Ended() const { return ended_; }

  /// Bytes taken so far, and bytes in the file when it was opened.
  std::uint64_t Position() const { return position_; }
  std::uint64_t Size() const { return size_; }

  /// The next `count` bytes (at most kMaxTake), fewer at the end of the file. Valid until the next call.
  std::string_view Take(std::size_t count);

  /// The next `count` bytes without taking them, fewer at the end of the file, which is not noted.
  std::string_view Peek(std::size_t count);

  /// Hands the next `count` bytes to `sink` in pieces of at most the buffer's size, or to nobody where `sink`
  /// is empty.
  void Take(std::uint64_t count, const std::function<void(std::string_view)>& sink);

 private:
  void Refill();

  std::ifstream stream_;
  std::vector<char> buffer_;
  std::size_t begin_ = 0;  ///< unread bytes of the buffer: [begin_, end_)
  std::size_t end_ = 0;
  std::uint64_t position_ = 0;
  std::uint64_t size_ = 0;
  bool ended_ = false;
};

}  // namespace quorvantis
