// SPDX-License-Identifier: MIT
#include "desktop/controls/Pictures.h"

#include <QBuffer>
#include <QPixmap>

#include <gtest/gtest.h>

#include <map>

namespace quorvantis::test {
namespace {

/// A library with pictures of one colour.
class Library : public LanguageLibrary {
 public:
  void Add(const std::string& name, int scale, Qt::GlobalColor colour) {
    QPixmap picture(73 * scale, 28 * scale);
    picture.fill(colour);
    QBuffer buffer(&pictures_[{name, scale}]);
    picture.save(&buffer, "PNG");
  }
  std::u16string Text(int) const override { return {}; }
  std::optional<std::uint16_t> Id() const override { return 0; }
  std::u16string DialogText(int, int) const override { return {}; }
  std::span<const std::byte> Bitmap(std::string_view name, int scale) const override {
    const auto found = pictures_.find({std::string(name), scale});
    if (found == pictures_.end()) return {};
    return std::as_bytes(
        std::span(found->second.constData(), static_cast<std::size_t>(found->second.size())));
  }

 private:
  std::map<std::pair<std::string, int>, QByteArray> pictures_;
};

QColor Middle(const QIcon& icon, qreal scale = 1) {
  const QImage image = icon.pixmap({73, 28}, scale).toImage();
  return image.pixelColor(image.rect().center());
}

TEST(Pictures, OfALanguageComeFirst) {
  Library library;
  library.Add("DeleteU", 1, Qt::red);
  library.Add("DeleteU", 2, Qt::blue);
  library.Add("insertU", 2, Qt::blue);
  const Pictures pictures(&library);
  EXPECT_EQ(Middle(pictures.Picture("DeleteU")), QColor(Qt::red));
  EXPECT_EQ(Middle(pictures.Picture("DeleteU"), 2), QColor(Qt::blue));
  EXPECT_EQ(Middle(pictures.Picture("insertU")), QColor(Qt::blue)) << "scaled down, not mixed with others";
  EXPECT_FALSE(pictures.Picture("207").isNull());
}

}  // namespace
}  // namespace quorvantis::test
