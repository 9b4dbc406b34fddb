// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PixelGrid.h"
#include "platform/WordDocuments.h"
#include "platform/documents/PictureFormat.h"

#include <string_view>

namespace quorvantis {

/// Decodes a pixel image, not a metafile. Transparency becomes white. Memory is taken only once its size is
/// known to be within `kMostPixels`.
WordResult DecodePicture(const PictureFormat& format, std::string_view bytes, PixelGrid& pixels);

}  // namespace quorvantis
