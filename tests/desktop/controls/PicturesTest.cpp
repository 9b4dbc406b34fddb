// SPDX-License-Identifier: MIT
#include "desktop/controls/Pictures.h"

#include <QBuffer>
#include <QPixmap>

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

/// A library with one picture, for screens of high resolution.
struct OnePicture : LanguageLibrary {
  QByteArray bytes;
  std::u16string Text(int) const override { return {}; }
  std::optional<std::uint16_t> Id() const override { return 0; }
  std::u16string DialogText(int, int) const override { return {}; }
  std::span<const std::byte> Bitmap(std::string_view name, int scale) const override {
    if (name != "DeleteU" || scale != 2) return {};
    return std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size())));
  }
};

QColor Middle(const QIcon& icon, qreal scale = 1) {
  const QImage image = icon.pixmap({73, 28}, scale).toImage();
  return image.pixelColor(image.rect().center());
}

TEST(Pictures, OfALanguageComeFirst) {
  OnePicture library;
  QPixmap picture(2 * 73, 2 * 28);
  picture.fill(Qt::blue);
  QBuffer buffer(&library.bytes);
  picture.save(&buffer, "PNG");
  const Pictures pictures(&library);
  EXPECT_EQ(Middle(pictures.Picture("DeleteU"), 2), QColor(Qt::blue));
  EXPECT_EQ(Middle(pictures.Picture("DeleteU")), QColor(Qt::blue)) << "scaled down, not mixed with others";
  EXPECT_FALSE(pictures.Picture("207").isNull());
}

}  // namespace
}  // namespace quorvantis::test
