// SPDX-License-Identifier: MIT
#include "WordReaderTest.h"

#include <gd.h>
#include <zlib.h>

namespace quorvantis::test {
namespace {

class DocumentPicturesTest : public WordReaderTest {
 protected:
  /// The only picture of a document, saved.
  WordResult Save(std::string_view picture) {
    const auto outcome = Open(
        DocxBuilder().Picture("rId9", picture).Body("<w:p>" + DocxBuilder::PictureXml("rId9") + "</w:p>"));
    return outcome.document ? outcome.document->SavePicture(0, folder / "0.bmp") : outcome.result;
  }
};

using Writer = void* (*)(gdImage*, int*);

/// Two pixels, one above the other: red and a transparent one.
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

TEST_F(DocumentPicturesTest, BitmapFileByteByByte) {
  ASSERT_EQ(Save(Encoded(::gdImagePngPtr)), WordResult::Done);
  using namespace std::literals;
  EXPECT_EQ(ReadBytes(folder / "0.bmp"),
            "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0"
            "\x28\0\0\0\x01\0\0\0\x02\0\0\0\x01\0\x18\0\0\0\0\0\x08\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
            "\xFF\xFF\xFF\0\0\0\xFF\0"
            "\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s);
}

TEST_F(DocumentPicturesTest, EveryCommonKindIsRead) {
  const Writer bmp = [](gdImage* image, int* size) { return ::gdImageBmpPtr(image, size, 0); };
  const Writer jpeg = [](gdImage* image, int* size) { return ::gdImageJpegPtr(image, size, 90); };
  for (const Writer writer :
       {Writer{::gdImagePngPtr}, Writer{::gdImageGifPtr}, Writer{::gdImageTiffPtr}, bmp, jpeg}) {
    const std::string bytes = Encoded(writer);
    EXPECT_EQ(Save(bytes), WordResult::Done) << bytes.substr(0, 4);
    EXPECT_EQ(ReadBytes(folder / "0.bmp").size(), 14U + 40 + 8 + 14);
    EXPECT_NE(Save(bytes.substr(0, 20)), WordResult::Done) << bytes.substr(0, 4);
  }
}

TEST_F(DocumentPicturesTest, HugePicturesAreRefusedBeforeMemoryIsTaken) {
  std::string png = Encoded(::gdImagePngPtr);
  png.replace(16, 8, std::string("\0\0\xF0\0\0\0\xF0\0", 8));
  EXPECT_EQ(Save(png), WordResult::TooLarge);
  EXPECT_EQ(Save("GIF89a\xFF\xFF\xFF\xFF"), WordResult::TooLarge);
  EXPECT_EQ(Save("nothing of the kind"), WordResult::UnknownFormat);
  const auto linked = Open(DocxBuilder().Body("<w:p><a:blip r:link=\"x\"/></w:p>"));
  EXPECT_EQ(linked.document->SavePicture(0, folder / "1.bmp"), WordResult::NotFound);
  EXPECT_EQ(linked.document->SavePicture(7, folder / "1.bmp"), WordResult::NotFound);
}

/// A window of one by one centimetre, all of it black.
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

std::string Gzipped(const std::string& bytes) {
  z_stream stream{};
  ::deflateInit2(&stream, 6, Z_DEFLATED, 16 + MAX_WBITS, 8, Z_DEFAULT_STRATEGY);
  std::string packed(bytes.size() + 100, '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
  stream.avail_in = static_cast<uInt>(bytes.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  ::deflate(&stream, Z_FINISH);
  packed.resize(stream.total_out);
  ::deflateEnd(&stream);
  return packed;
}

TEST_F(DocumentPicturesTest, MetafilesAreDrawn) {
  const OfficePrograms programs = OfficePrograms::Find();
  if (programs.office.empty() || programs.pdfImages.empty())
    GTEST_SKIP() << "LibreOffice or poppler is not installed";
  const std::string withoutSize = BlackWmf().substr(22);
  ASSERT_EQ(Save(withoutSize), WordResult::Done);
  const std::string asShown = ReadBytes(folder / "0.bmp");
  ASSERT_EQ(Save(Gzipped(BlackWmf())), WordResult::Done);
  EXPECT_EQ(ReadBytes(folder / "0.bmp").size(), asShown.size());
  const std::string bitmap = ReadBytes(folder / "0.bmp");
  const std::size_t width = static_cast<unsigned char>(bitmap.at(18));
  EXPECT_NEAR(static_cast<double>(width), 57.0, 2.0);  // one centimetre
  const std::size_t centre = 54 + (width * 3 + 3) / 4 * 4 * (width / 2) + width / 2 * 3;
  EXPECT_EQ(bitmap.substr(centre, 3), std::string(3, '\0'));
}

}  // namespace
}  // namespace quorvantis::test
