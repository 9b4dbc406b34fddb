// SPDX-License-Identifier: MIT
#include "BankWindowTest.h"
#include "desktop/bank/hits/BankHitsModel.h"
#include "desktop/bank/hits/ThumbnailDecoder.h"

#include <QBuffer>
#include <QImage>

#include <random>

namespace quorvantis::test {
namespace {

std::string PictureBytes(const char* format, QSize size, QColor color = Qt::green) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(color);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(picture.save(&buffer, format));
  return buffer.data().toStdString();
}

/// The head of a picture of any size, which has no such content.
std::string ClaimedPng(quint32 width, quint32 height) {
  std::string bytes = PictureBytes("png", {2, 2});
  for (int i = 0; i < 4; ++i) {
    bytes[static_cast<std::size_t>(16 + i)] = static_cast<char>(width >> (24 - 8 * i));
    bytes[static_cast<std::size_t>(20 + i)] = static_cast<char>(height >> (24 - 8 * i));
  }
  return bytes;
}

TEST(ThumbnailDecoder, MakesPicturesSmallAndRefusesWhatIsNone) {
  const struct {
    const char* what;
    std::string bytes;
    QSize size;
  } rows[] = {{"small", PictureBytes("png", {30, 20}), {30, 20}},
              {"wide", PictureBytes("jpeg", {1600, 100}), {160, 10}},
              {"high", PictureBytes("bmp", {100, 400}), {40, 160}},
              {"a line", PictureBytes("png", {4000, 1}), {160, 1}},
              {"a drawing", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>", {0, 0}},
              {"an icon", PictureBytes("ico", {16, 16}), {0, 0}},
              {"huge", ClaimedPng(60000, 60000), {0, 0}},
              {"empty", "", {0, 0}},
              {"text", "no picture", {0, 0}}};
  for (const auto& row : rows) EXPECT_EQ(DecodeThumbnail(row.bytes).size(), row.size) << row.what;
}

TEST(ThumbnailDecoder, SurvivesDamage) {
  std::mt19937 random(3);
  for (const char* format : {"png", "jpeg", "bmp"}) {
    const std::string whole = PictureBytes(format, {300, 200});
    for (int round = 0; round < 200; ++round) {
      std::string bytes = whole.substr(0, random() % 4 == 0 ? random() % whole.size() : whole.size());
      for (std::size_t n = random() % 6; n > 0 && !bytes.empty(); --n)
        bytes[random() % std::min<std::size_t>(bytes.size(), 200)] = static_cast<char>(random());
      const QSize size = DecodeThumbnail(bytes).size();
      ASSERT_LE(std::max(size.width(), size.height()), kThumbnailSide);
    }
  }
}

class BankThumbnailsTest : public BankWindowTest {
 protected:
  QImage PictureIn(int row) {
    return Control<QListView>("bankHits")
        .model()
        ->index(row, 0)
        .data(BankHitsModel::PictureRole)
        .value<QImage>();
  }
};

TEST_F(BankThumbnailsTest, EachRowGetsThePictureOfItsQuestion) {
  const Qt::GlobalColor colors[] = {Qt::red, Qt::green, Qt::blue, Qt::yellow};
  for (int i = 0; i < 4; ++i) {
    const std::string number = std::to_string(i);
    const auto picture = WriteBytes(folder / (number + ".png"), PictureBytes("png", {9, 9}, colors[i]));
    WriteExam((number + ".exm").c_str(), {u"colour" + QString::number(i).toStdU16String(), u"none"}, picture);
  }
  WriteExam("5.exm", {u"colour5"}, WriteBytes(folder / "5.png", "no picture"));
  OpenBank();
  for (int i = 0; i < 4; ++i) {
    Find("colour" + QString::number(i), 1);
    const auto isThere = [&] {
      const QImage picture = PictureIn(0);
      return !picture.isNull() && picture.pixelColor(4, 4) == QColor(colors[i]);
    };
    EXPECT_TRUE(QTest::qWaitFor(isThere, 20'000)) << i;
  }
  Find("none", 4);
  EXPECT_FALSE(
      Control<QListView>("bankHits").model()->index(0, 0).data(BankHitsModel::HasPictureRole).toBool());
  Find("colour5", 1);
  QTest::qWait(300);
  EXPECT_TRUE(PictureIn(0).isNull());
}

}  // namespace
}  // namespace quorvantis::test
