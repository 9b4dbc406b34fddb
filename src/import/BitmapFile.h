// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PixelGrid.h"

#include <string>

namespace quorvantis {

/// The content of a Windows bitmap file (".bmp") of 24 bits: file header, information header, rows from the
/// bottom to the top.
class BitmapFile {
 public:
  /// Deliberate: this many zero bytes follow the picture, as in every bitmap file inside exams; the size in
  /// the header does not count them.
  static constexpr std::size_t kBytesBehindPicture = 14;

  explicit BitmapFile(const PixelGrid& pixels);

  const std::string& Bytes() const { return bytes_; }

 private:
  void AppendNumber(std::size_t value, int bytes);
  void AppendHeaders(const PixelGrid& pixels, std::size_t pictureBytes);
  void AppendRow(const PixelGrid& pixels, std::size_t row, std::size_t rowBytes);

  std::string bytes_;
};

}  // namespace quorvantis
