// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quorvantis {

enum class PictureKind { Png, Jpeg, Gif, Bmp, Tiff, Emf, Wmf };

/// What a picture says about itself before it is decoded. It is told by the content; names are often wrong.
struct PictureFormat {
  PictureKind kind = PictureKind::Png;
  std::uint64_t width = 0;   ///< in pixels; of a metafile in hundredths of a millimetre
  std::uint64_t height = 0;  ///< 0 where it cannot be told

  bool IsMetafile() const { return kind == PictureKind::Emf || kind == PictureKind::Wmf; }

  /// Nothing for another kind of content.
  static std::optional<PictureFormat> Of(std::string_view bytes);
};

}  // namespace quorvantis
