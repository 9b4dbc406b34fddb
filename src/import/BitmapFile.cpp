// SPDX-License-Identifier: MIT
#include "import/BitmapFile.h"

namespace quorvantis {
namespace {

constexpr std::size_t kFileHeaderBytes = 14;
constexpr std::size_t kInformationBytes = 40;
constexpr std::size_t kPixelBytes = PixelGrid::kPixelBytes;

}  // namespace

BitmapFile::BitmapFile(const PixelGrid& pixels) {
  const std::size_t rowBytes = (pixels.width * kPixelBytes + 3) / 4 * 4;
  const std::size_t pictureBytes = rowBytes * pixels.height;
  bytes_.reserve(kFileHeaderBytes + kInformationBytes + pictureBytes + kBytesBehindPicture);
  AppendHeaders(pixels, pictureBytes);
  for (std::size_t row = pixels.height; row-- > 0;) AppendRow(pixels, row, rowBytes);
  bytes_.append(kBytesBehindPicture, '\0');
}

void BitmapFile::AppendNumber(std::size_t value, int bytes) {
  for (; bytes > 0; --bytes, value >>= 8U) bytes_.push_back(static_cast<char>(value & 0xFFU));
}

void BitmapFile::AppendHeaders(const PixelGrid& pixels, std::size_t pictureBytes) {
  constexpr std::size_t kHeaders = kFileHeaderBytes + kInformationBytes;
  bytes_ += "BM";
  AppendNumber(kHeaders + pictureBytes, 4);
  AppendNumber(0, 4);
  AppendNumber(kHeaders, 4);
  AppendNumber(kInformationBytes, 4);
  AppendNumber(pixels.width, 4);
  AppendNumber(pixels.height, 4);
  AppendNumber(1, 2);                // planes
  AppendNumber(8 * kPixelBytes, 2);  // bits of a pixel
  AppendNumber(0, 4);                // not compressed
  AppendNumber(pictureBytes, 4);
  AppendNumber(0, 4);  // pixels per metre, and an empty colour table
  AppendNumber(0, 4);
  AppendNumber(0, 4);
  AppendNumber(0, 4);
}

void BitmapFile::AppendRow(const PixelGrid& pixels, std::size_t row, std::size_t rowBytes) {
  const std::size_t begin = bytes_.size();
  bytes_.resize(begin + rowBytes, '\0');
  char* target = bytes_.data() + begin;
  const std::uint8_t* pixel = pixels.bytes.data() + row * pixels.width * kPixelBytes;
  for (std::size_t i = 0; i < pixels.width; ++i, pixel += kPixelBytes, target += kPixelBytes) {
    for (std::size_t colour = 0; colour < kPixelBytes; ++colour)
      target[kPixelBytes - 1 - colour] = static_cast<char>(pixel[colour]);
  }
}

}  // namespace quorvantis
