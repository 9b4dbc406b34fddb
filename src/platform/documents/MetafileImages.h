// SPDX-License-Identifier: MIT
#pragma once

#include "platform/documents/PictureFormat.h"
#include "platform/posix/PrivateFolder.h"
#include "platform/programs/OfficeConverter.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Turns vector drawings into pixels: LibreOffice draws all of them in one run, as pages of a document.
class MetafileImages {
 public:
  /// Adds one and returns its number, from 0.
  std::size_t Add(const PictureFormat& format, std::string_view bytes);

  /// Whether the limit is reached and no more should be added.
  bool IsFull() const { return count_ >= kMost || pages_.size() > kMostBytes; }

  WordResult Draw(const OfficeConverter& converter);

  /// The PNG file of a picture, once they have been drawn.
  std::string Bytes(std::size_t number) const;

 private:
  static constexpr std::size_t kMost = 500;
  static constexpr std::size_t kMostBytes = std::size_t{128} << 20;
  static constexpr std::size_t kMostImageBytes = std::size_t{64} << 20;

  std::string Document() const;

  PrivateFolder folder_;
  std::string styles_;
  std::string masters_;
  std::string pages_;
  std::size_t count_ = 0;
  std::vector<std::filesystem::path> images_;
};

}  // namespace quorvantis
