// SPDX-License-Identifier: MIT
#include "examfile/ByteSource.h"

#include <algorithm>
#include <cstring>
#include <system_error>

namespace quorvantis {

ByteSource::ByteSource(const std::filesystem::path& file) {
  // Opening a pipe would block forever here; a folder would open and then fail.
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return;
  size_ = std::filesystem::file_size(file, error);
  stream_.rdbuf()->pubsetbuf(nullptr, 0);  // the buffer below is the only one
  stream_.open(file, std::ios::binary);
  if (!stream_.is_open()) return;
  buffer_.resize(static_cast<std::size_t>(std::clamp<std::uint64_t>(size_, kMaxTake, kBufferSize)));
}

/// Moves the unread bytes to the front and fills up the buffer.
void ByteSource::Refill() {
  std::memmove(buffer_.data(), buffer_.data() + begin_, end_ - begin_);
  end_ -= begin_;
  begin_ = 0;
  stream_.read(buffer_.data() + end_, static_cast<std::streamsize>(buffer_.size() - end_));
  end_ += static_cast<std::size_t>(stream_.gcount());
}

std::string_view ByteSource::Peek(std::size_t count) {
  if (end_ - begin_ < count && stream_.good()) Refill();
  return {buffer_.data() + begin_, std::min(count, end_ - begin_)};
}

std::string_view ByteSource::Take(std::size_t count) {
  if (ended_) return {};
  const std::string_view bytes = Peek(count);
  ended_ = bytes.size() < count;
  begin_ += bytes.size();
  position_ += bytes.size();
  return bytes;
}

/// Passes over bytes that the file has, if they are so many that reading them would take longer. Returns how
/// many these were: all or none.
std::uint64_t ByteSource::JumpOver(std::uint64_t count) {
  const std::uint64_t unread = end_ - begin_;
  const bool isWithin = !ended_ && stream_.good() && position_ <= size_ && count <= size_ - position_;
  if (!isWithin || count < unread + kBufferSize) return 0;
  stream_.seekg(static_cast<std::streamoff>(count - unread), std::ios::cur);
  begin_ = end_ = 0;
  position_ += count;
  return count;
}

void ByteSource::Take(std::uint64_t count, const std::function<void(std::string_view)>& sink) {
  if (!sink) count -= JumpOver(count);
  while (count > 0 && !ended_) {
    if (begin_ == end_ && stream_.good()) Refill();
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(count, buffer_.size()));
    const std::string_view bytes = Take(std::min(wanted, std::max<std::size_t>(end_ - begin_, 1)));
    if (sink && !bytes.empty()) sink(bytes);
    count -= bytes.size();
  }
}

}  // namespace quorvantis
