// SPDX-License-Identifier: MIT
#include "desktop/bank/hits/ThumbnailDecoder.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <iterator>

namespace quorvantis {
namespace {

/// A kind of picture, and how many pixels are decoded: a JPEG is made small on the way, of others there is
/// the whole first.
struct DecodedKind {
  const char* format;
  qint64 mostPixels;
};

constexpr DecodedKind kDecodedKinds[] = {{"jpeg", 150'000'000},
                                         {"png", 24'000'000},
                                         {"gif", 24'000'000},
                                         {"bmp", 24'000'000},
                                         {"webp", 24'000'000}};

bool IsDecoded(const QByteArray& format, const QSize& size) {
  const auto* const kind = std::ranges::find_if(
      kDecodedKinds, [&format](const DecodedKind& each) { return format == each.format; });
  return kind != std::end(kDecodedKinds) && !size.isEmpty() &&
         qint64{size.width()} * size.height() <= kind->mostPixels;
}

}  // namespace

QImage DecodeThumbnail(std::string_view bytes) {
  QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&data);
  if (!buffer.open(QIODevice::ReadOnly)) return {};
  QImageReader reader(&buffer);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (!IsDecoded(reader.format(), size)) return {};
  const QSize most(kThumbnailSide, kThumbnailSide);
  const bool isSmall = size.boundedTo(most) == size;
  if (!isSmall) reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1}));
  return reader.read();
}

}  // namespace quorvantis
