// SPDX-License-Identifier: MIT
// Strangers' pictures made small. Safe on any thread.
#pragma once

#include <QImage>

#include <string_view>

namespace quorvantis {

/// The longest side of a thumbnail, in pixels: a row of a list at twice the usual size.
inline constexpr int kThumbnailSide = 160;

/// The picture of a file's bytes, no larger than that; null if it is of no kind that pages show as a picture
/// without running anything, is damaged, or has so many pixels that decoding it would take long.
QImage DecodeThumbnail(std::string_view bytes);

}  // namespace quorvantis
