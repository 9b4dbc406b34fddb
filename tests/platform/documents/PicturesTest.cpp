// SPDX-License-Identifier: MIT
#include "WordDocumentsTest.h"

#include <gd.h>

namespace quorvantis::test {
namespace {

class DocumentPicturesTest : public WordDocumentsTest {
 protected:
  /// The only picture of a document.
  WordResult Read(std::string_view picture) {
    const auto outcome = Open(
        DocxBuilder().Picture("rId9", picture).Body("<w:p>" + DocxBuilder::PictureXml("rId9") + "</w:p>"));
    return outcome.pictures ? outcome.pictures->Read(0, pixels) : outcome.result;
  }

  PixelGrid pixels;
};

using Writer = void* (*)(gdImage*, int*);

/// Two pixels, one above the other: red and transparent.
std::string Encoded(Writer write) {
  gdImage* const image = ::gdImageCreateTrueColor(1, 2);
  ::gdImageAlphaBlending(image, 0);
  ::gdImageSaveAlpha(image, 1);
  ::gdImageSetPixel(image, 0, 0, gdTrueColor(255, 0, 0));
  ::gdImageSetPixel(image, 0, 1, gdTrueColorAlpha(0, 0, 0, gdAlphaTransparent));
  int size = 0;
  void* const bytes = write(image, &size);
  std::string encoded(static_cast<const char*>(bytes), static_cast<std::size_t>(size));
  ::gdFree(bytes);
  ::gdImageDestroy(image);
  return encoded;
}

TEST_F(DocumentPicturesTest, EveryCommonKindIsRead) {
  const Writer bmp = [](gdImage* image, int* size) { return ::gdImageBmpPtr(image, size, 0); };
  const Writer jpeg = [](gdImage* image, int* size) { return ::gdImageJpegPtr(image, size, 90); };
  for (const Writer writer :
       {Writer{::gdImagePngPtr}, Writer{::gdImageGifPtr}, Writer{::gdImageTiffPtr}, bmp, jpeg}) {
    const std::string bytes = Encoded(writer);
    EXPECT_EQ(Read(bytes), WordResult::Done) << bytes.substr(0, 4);
  }
  ASSERT_EQ(Read(Encoded(::gdImagePngPtr)), WordResult::Done);
  EXPECT_EQ(pixels.bytes, (std::vector<std::uint8_t>{255, 0, 0, 255, 255, 255}));
}

TEST_F(DocumentPicturesTest, HugePicturesAreRefusedBeforeMemoryIsTaken) {
  std::string png = Encoded(::gdImagePngPtr);
  png.replace(16, 8, std::string("\0\0\xF0\0\0\0\xF0\0", 8));
  EXPECT_EQ(Read(png), WordResult::TooLarge);
  EXPECT_EQ(Read("GIF89a\xFF\xFF\xFF\xFF"), WordResult::TooLarge);
  EXPECT_EQ(Read("nothing of the kind"), WordResult::UnknownFormat);
  const auto linked = Open(DocxBuilder().Body("<w:p><a:blip r:link=\"x\"/></w:p>"));
  EXPECT_EQ(linked.pictures->Read(0, pixels), WordResult::NotFound);
  EXPECT_EQ(linked.pictures->Read(7, pixels), WordResult::NotFound);
}

/// A window of one by one centimetre, all black.
std::string BlackWmf() {
  using namespace std::literals;
  return "\xD7\xCD\xC6\x9A\0\0\0\0\0\0\x37\x02\x37\x02\xA0\x05\0\0\0\0\0\0"
         "\x01\0\x09\0\0\x03\x28\0\0\0\x01\0\x07\0\0\0\0\0"
         "\x05\0\0\0\x0B\x02\0\0\0\0"
         "\x05\0\0\0\x0C\x02\x37\x02\x37\x02"
         "\x07\0\0\0\xFC\x02\0\0\0\0\0\0\0\0"
         "\x04\0\0\0\x2D\x01\0\0"
         "\x07\0\0\0\x1B\x04\x37\x02\x37\x02\0\0\0\0"
         "\x03\0\0\0\0\0"s;
}

TEST_F(DocumentPicturesTest, MetafilesAreDrawn) {
  const OfficePrograms programs = OfficePrograms::Find();
  if (programs.office.empty() || programs.pdfImages.empty())
    GTEST_SKIP() << "LibreOffice or poppler is not installed";
  ASSERT_EQ(Read(BlackWmf()), WordResult::Done);
  EXPECT_NEAR(static_cast<double>(pixels.width), 57.0, 2.0);  // one centimetre
  const std::size_t centre = (pixels.height / 2 * pixels.width + pixels.width / 2) * PixelGrid::kPixelBytes;
  EXPECT_EQ(pixels.bytes.at(centre), 0);
}

}  // namespace
}  // namespace quorvantis::test
