// SPDX-License-Identifier: MIT
#include "platform/documents/PictureFormat.h"

#include "platform/documents/ByteNumbers.h"

#include <algorithm>
#include <cmath>

namespace quorvantis {
namespace {

constexpr auto kBig = std::endian::big;
constexpr auto kLittle = std::endian::little;

std::uint64_t Distance(std::uint32_t from, std::uint32_t to) {
  const std::int64_t distance = std::int64_t{static_cast<std::int32_t>(to)} - static_cast<std::int32_t>(from);
  return static_cast<std::uint64_t>(std::abs(distance));
}

PictureFormat Png(std::string_view bytes) {
  return {PictureKind::Png, NumberAt(bytes, 16, 4, kBig), NumberAt(bytes, 20, 4, kBig)};
}

/// The size is in the frame header, after segments that can be skipped.
PictureFormat Jpeg(std::string_view bytes) {
  constexpr unsigned kFirstFrame = 0xC0;
  constexpr unsigned kLastFrame = 0xCF;
  PictureFormat format{PictureKind::Jpeg, 0, 0};
  for (std::size_t at = 2; at + 9 < bytes.size();) {
    const std::uint32_t marker = NumberAt(bytes, at + 1, 1);
    if (static_cast<unsigned char>(bytes[at]) != 0xFF || marker == 0xFF || marker == 0) {
      ++at;
      continue;
    }
    const bool isTable = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
    if (marker >= kFirstFrame && marker <= kLastFrame && !isTable) {
      return {PictureKind::Jpeg, NumberAt(bytes, at + 7, 2, kBig), NumberAt(bytes, at + 5, 2, kBig)};
    }
    const bool isBare = marker >= 0xD0 && marker <= 0xD8;
    at += 2 + (isBare ? 0 : NumberAt(bytes, at + 2, 2, kBig));
  }
  return format;
}

PictureFormat Gif(std::string_view bytes) {
  return {PictureKind::Gif, NumberAt(bytes, 6, 2), NumberAt(bytes, 8, 2)};
}

PictureFormat Bmp(std::string_view bytes) {
  constexpr std::uint32_t kOldHeaderBytes = 12;
  if (NumberAt(bytes, 14, 4) == kOldHeaderBytes)
    return {PictureKind::Bmp, NumberAt(bytes, 18, 2), NumberAt(bytes, 20, 2)};
  // A negative height means rows from the top.
  return {PictureKind::Bmp, NumberAt(bytes, 18, 4), Distance(0, NumberAt(bytes, 22, 4))};
}

/// If a field is given twice, the larger value counts.
PictureFormat Tiff(std::string_view bytes) {
  constexpr std::size_t kTagBytes = 12;
  constexpr std::uint32_t kWidthTag = 256;
  constexpr std::uint32_t kHeightTag = 257;
  constexpr std::uint32_t kShort = 3;
  const std::endian order = bytes.front() == 'I' ? kLittle : kBig;
  PictureFormat format{PictureKind::Tiff, 0, 0};
  const std::size_t directory = NumberAt(bytes, 4, 4, order);
  const std::uint32_t entries = NumberAt(bytes, directory, 2, order);
  for (std::size_t i = 0; i < entries; ++i) {
    const std::size_t entry = directory + 2 + i * kTagBytes;
    const std::uint32_t tag = NumberAt(bytes, entry, 2, order);
    const std::size_t size = NumberAt(bytes, entry + 2, 2, order) == kShort ? 2 : 4;
    const std::uint64_t value = NumberAt(bytes, entry + 8, size, order);
    if (tag == kWidthTag) format.width = std::max(format.width, value);
    if (tag == kHeightTag) format.height = std::max(format.height, value);
  }
  return format;
}

PictureFormat Emf(std::string_view bytes) {
  return {PictureKind::Emf, Distance(NumberAt(bytes, 24, 4), NumberAt(bytes, 32, 4)),
          Distance(NumberAt(bytes, 28, 4), NumberAt(bytes, 36, 4))};
}

/// A metafile can have a header with its units per inch.
PictureFormat PlaceableWmf(std::string_view bytes) {
  constexpr std::uint64_t kHundredthsOfInch = 2540;
  const auto coordinate = [bytes](std::size_t at) {
    return std::int32_t{static_cast<std::int16_t>(NumberAt(bytes, at, 2))};
  };
  const std::uint64_t inch = std::max(NumberAt(bytes, 14, 2), 1U);
  const auto length = [&](std::size_t from, std::size_t to) {
    return static_cast<std::uint64_t>(std::abs(coordinate(to) - coordinate(from))) * kHundredthsOfInch / inch;
  };
  return {PictureKind::Wmf, length(6, 10), length(8, 12)};
}

}  // namespace

std::optional<PictureFormat> PictureFormat::Of(std::string_view bytes) {
  using namespace std::literals;
  if (bytes.starts_with("\x89PNG\r\n"sv)) return Png(bytes);
  if (bytes.starts_with("\xFF\xD8\xFF"sv)) return Jpeg(bytes);
  if (bytes.starts_with("GIF8"sv)) return Gif(bytes);
  if (bytes.starts_with("BM"sv)) return Bmp(bytes);
  if (bytes.starts_with("II*\0"sv) || bytes.starts_with("MM\0*"sv)) return Tiff(bytes);
  if (bytes.starts_with("\x01\0\0\0"sv) &&
      bytes.substr(std::min<std::size_t>(bytes.size(), 40)).starts_with(" EMF"sv)) {
    return Emf(bytes);
  }
  if (bytes.starts_with("\xD7\xCD\xC6\x9A"sv)) return PlaceableWmf(bytes);
  if (bytes.starts_with("\x01\0\x09\0"sv) || bytes.starts_with("\x02\0\x09\0"sv))
    return PictureFormat{PictureKind::Wmf, 0, 0};
  return std::nullopt;
}

}  // namespace quorvantis
