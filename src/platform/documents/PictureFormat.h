// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvantis {

enum class PictureKind { Png, Jpeg, Gif, Bmp, Tiff, Emf, Wmf };

/// What is known of a picture before it is decoded. Its content decides its type; names are often wrong.
struct PictureFormat {
  PictureKind kind = PictureKind::Png;
  std::uint64_t width = 0;   ///< in pixels; for a metafile in hundredths of a millimetre
  std::uint64_t height = 0;  ///< 0 if unknown

  bool IsMetafile() const { return kind == PictureKind::Emf || kind == PictureKind::Wmf; }

  /// Nothing for other content.
  static std::optional<PictureFormat> Of(std::string_view bytes);
};

}  // namespace quorvantis
