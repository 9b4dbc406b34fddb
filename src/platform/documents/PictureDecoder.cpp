// SPDX-License-Identifier: MIT
#include "platform/documents/PictureDecoder.h"

#include "platform/documents/PictureLibrary.h"

#include <limits>
#include <memory>

namespace quorvantis {
namespace {

constexpr std::uint64_t kLongestSide = 65'535;

using Image = std::unique_ptr<gdImage, decltype(PictureLibrary::destroy)>;

gdImage* Decode(const PictureLibrary& library, PictureKind kind, int size, void* data) {
  switch (kind) {
    case PictureKind::Png:
      return library.createFromPng(size, data);
    case PictureKind::Jpeg:
      return library.createFromJpeg(size, data, 1);
    case PictureKind::Gif:
      return library.createFromGif(size, data);
    case PictureKind::Bmp:
      return library.createFromBmp(size, data);
    case PictureKind::Tiff:
      return library.createFromTiff(size, data);
    case PictureKind::Emf:
    case PictureKind::Wmf:
      break;
  }
  return nullptr;
}

std::uint8_t OnWhite(int colour, int transparency) {
  return static_cast<std::uint8_t>(colour + (255 - colour) * transparency / gdAlphaMax);
}

void PutPixel(int colour, std::uint8_t* target) {
  const int transparency = gdTrueColorGetAlpha(colour);
  target[0] = OnWhite(gdTrueColorGetRed(colour), transparency);
  target[1] = OnWhite(gdTrueColorGetGreen(colour), transparency);
  target[2] = OnWhite(gdTrueColorGetBlue(colour), transparency);
}

/// `image` has a colour per pixel, not a palette.
PixelGrid PixelsOf(gdImage* image) {
  PixelGrid pixels{
      static_cast<std::size_t>(gdImageSX(image)), static_cast<std::size_t>(gdImageSY(image)), {}};
  pixels.bytes.resize(PixelGrid::kPixelBytes * pixels.width * pixels.height);
  std::uint8_t* target = pixels.bytes.data();
  for (int y = 0; y < gdImageSY(image); ++y) {
    for (int x = 0; x < gdImageSX(image); ++x, target += PixelGrid::kPixelBytes)
      PutPixel(gdImageTrueColorPixel(image, x, y), target);
  }
  return pixels;
}

}  // namespace

WordResult DecodePicture(const PictureFormat& format, std::string_view bytes, PixelGrid& pixels) {
  if (format.width == 0 || format.height == 0) return WordResult::Damaged;
  const bool isTooLarge = format.width > kLongestSide || format.height > kLongestSide ||
                          format.width * format.height > kMostPixels ||
                          bytes.size() > std::numeric_limits<int>::max();
  if (isTooLarge) return WordResult::TooLarge;
  const PictureLibrary* const library = PictureLibrary::Get();
  if (library == nullptr) return WordResult::UnknownFormat;
  // The library takes no constant bytes, but does not change them.
  void* const data = const_cast<char*>(bytes.data());
  const Image image(Decode(*library, format.kind, static_cast<int>(bytes.size()), data), library->destroy);
  if (!image) return WordResult::Damaged;
  library->paletteToTrueColor(image.get());
  pixels = PixelsOf(image.get());
  return WordResult::Done;
}

}  // namespace quorvantis
