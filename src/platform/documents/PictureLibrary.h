// SPDX-License-Identifier: MIT
#pragma once

#include <gd.h>

namespace quorvantis {

/// The functions of libgd. It is loaded with the first picture, not with the program: it brings some fifty
/// other libraries along, which take as long to load as everything else the command line does to show an
/// exam.
struct PictureLibrary {
  decltype(&::gdImageCreateFromPngPtr) createFromPng;
  decltype(&::gdImageCreateFromJpegPtrEx) createFromJpeg;
  decltype(&::gdImageCreateFromGifPtr) createFromGif;
  decltype(&::gdImageCreateFromBmpPtr) createFromBmp;
  decltype(&::gdImageCreateFromTiffPtr) createFromTiff;
  decltype(&::gdImagePaletteToTrueColor) paletteToTrueColor;
  decltype(&::gdImageDestroy) destroy;

  /// Null if it is not installed. It stays loaded.
  static const PictureLibrary* Get();
};

}  // namespace quorvantis
