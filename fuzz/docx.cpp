// SPDX-License-Identifier: MIT
// Feeds any bytes to the package reader: as the main part, the lists or a picture of a package, or as the
// package itself, depending on the first byte. The result must be consistent.
#include "Require.h"
#include "platform/documents/CompoundFile.h"
#include "platform/documents/DocxReader.h"
#include "platform/documents/PictureDecoder.h"
#include "support/TemporaryFolder.h"

#include <cstdint>
#include <string>
#include <zip.h>

namespace {

using namespace quorvantis;

constexpr std::string_view kLists =
    R"(<Relationships><Relationship Id="n" Type="/numbering" Target="n.xml"/>)"
    R"(<Relationship Id="s" Type="/styles" Target="n.xml"/></Relationships>)";
constexpr std::string_view kListed =
    R"(<document><body><p><pPr><numPr><ilvl val="0"/><numId val="1"/></numPr></pPr></p><p><pPr><numPr>)"
    R"(<ilvl val="1"/><numId val="1"/></numPr></pPr></p><p><pPr><pStyle val="A"/></pPr></p></body></document>)";

void RequireSound(const WordText& text, std::size_t pictures) {
  std::size_t last = 0;
  for (const WordObject& object : text.objects) {
    Require(object.position >= last && object.position <= text.characters.size());
    Require(object.kind == WordObjectKind::Equation || object.picture < pictures);
    last = object.position;
  }
}

void ReadPackage(const std::filesystem::path& file) {
  const ZipPackage package(file);
  if (package.Opened() != WordResult::Done) return;
  const DocxContent content = ReadDocx(package, true);
  if (content.result != WordResult::Done) return;
  Require(content.pictures.size() == content.document.pictures);
  RequireSound(content.document.runningText, content.document.pictures);
  for (const WordTable& table : content.document.tables) {
    for (const auto& row : table.rows) {
      for (const WordText& cell : row) {
        RequireSound(cell, content.document.pictures);
        Require(cell.characters.ends_with(u"\r\a"));
      }
    }
  }
}

void ReadPart(const std::filesystem::path& file, std::string_view main, std::string_view lists) {
  int error = 0;
  zip_t* const archive = ::zip_open(file.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &error);
  const auto add = [archive](const char* name, std::string_view bytes) {
    const zip_int64_t index =
        ::zip_file_add(archive, name, ::zip_source_buffer(archive, bytes.data(), bytes.size(), 0), 0);
    ::zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_STORE, 0);
  };
  add("word/document.xml", main);
  add("word/n.xml", lists);
  add("word/_rels/document.xml.rels", kLists);
  ::zip_close(archive);
  ReadPackage(file);
}

void ReadPicture(std::string_view bytes) {
  constexpr std::uint64_t kMostPixelsHere = 1'000'000;  // larger ones only take longer
  const auto format = PictureFormat::Of(bytes);
  if (!format || format->IsMetafile() || format->width * format->height > kMostPixelsHere) return;
  PixelGrid pixels;
  if (DecodePicture(*format, bytes, pixels) != WordResult::Done) return;
  Require(pixels.bytes.size() == 3 * pixels.width * pixels.height);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TemporaryFolder folder;
  if (size == 0) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  switch (data[0]) {
    case 'd':
      ReadPart(folder / "a.docx", bytes, {});
      break;
    case 'l':
      ReadPart(folder / "a.docx", kListed, bytes);
      break;
    case 'p':
      ReadPicture(bytes);
      break;
    case 'c':
      CompoundFile(bytes).Head(u"WordDocument", 12);
      break;
    default:
      ReadPackage(test::WriteBytes(folder / "a.docx", bytes));
  }
  return 0;
}
