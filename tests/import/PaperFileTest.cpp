// SPDX-License-Identifier: MIT
#include "import/PaperDocuments.h"
#include "import/PaperFile.h"
#include "platform/documents/OfficeWordDocuments.h"
#include "support/DocxBuilder.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

using namespace std::literals;

class PaperFileTest : public testing::Test {
 protected:
  PaperFile Open(const std::filesystem::path& file, const CancelHook& isCancelled = {}) {
    return OpenPaper(documents, file, isCancelled);
  }
  PaperFile OpenText(std::string_view bytes) { return Open(WriteBytes(folder / "paper.txt", bytes)); }

  TemporaryFolder folder;
  TestCodePage codePage;
  OfficeWordDocuments word;
  PaperDocuments documents{codePage, word};
};

TEST_F(PaperFileTest, ReadsDocumentsWithAllThatIsInThem) {
  const auto run = [](const std::string& look, const std::string& words) {
    return "<w:r><w:rPr>" + look + "</w:rPr><w:t xml:space=\"preserve\">" + words + "</w:t></w:r>";
  };
  const std::string numbered =
      "<w:pPr><w:numPr><w:ilvl w:val=\"0\"/><w:numId w:val=\"1\"/></w:numPr></w:pPr>";
  const std::string table = "<w:tbl><w:tr><w:tc><w:p>" + run("<w:b/>", "x") + "</w:p></w:tc><w:tc><w:p>" +
                            run("", "y") + "</w:p></w:tc></w:tr></w:tbl>";
  const std::string lists =
      "<w:numbering><w:abstractNum w:abstractNumId=\"0\"><w:lvl w:ilvl=\"0\"><w:start w:val=\"1\"/>"
      "<w:lvlText w:val=\"%1.\"/></w:lvl></w:abstractNum>"
      "<w:num w:numId=\"1\"><w:abstractNumId w:val=\"0\"/></w:num></w:numbering>";
  DocxBuilder builder;
  builder.Part("word/numbering.xml", lists)
      .Relate("n", "numbering", "numbering.xml")
      .Picture("p1", "")
      .Picture("p2", "")
      .Body("<w:p>" + numbered + run("", "a") + DocxBuilder::PictureXml("p1") + run("<w:b/>", "b") +
            "</w:p>" + table + "<w:p>" + DocxBuilder::PictureXml("p2") + run("<w:i/>", "c\u2574") +
            "<m:oMath/></w:p>");
  const PaperFile opened = Open(builder.Write(folder / "paper.docx"));
  ASSERT_EQ(opened.result, WordResult::Done);
  const PaperText& source = opened.paper.source;
  EXPECT_EQ(source.characters, u"1.\ta 1.bmp b\rx\ty\r 2.bmp c_##\r");
  const std::string looks(source.emphasis.begin(), source.emphasis.end());
  EXPECT_EQ(looks, "\0\0\0\0\0\0\0\0\0\0\0\1\0\1\0\0\0\0\0\0\0\0\0\0\x10\x10\0\0\0"s);
  ASSERT_EQ(opened.paper.tables.size(), 1U);
  EXPECT_EQ(opened.paper.tables[0].place, (TextSpan{13, 17}));
  EXPECT_TRUE(opened.hasAutomaticNumbers);
  EXPECT_EQ(opened.pictures, 2U);
  EXPECT_EQ(opened.formulas, 1U);
  EXPECT_EQ(CountEntries(folder.Path()), 1) << "no picture is written";
}

TEST_F(PaperFileTest, ReadsTextsAsTheyAre) {
  const struct {
    std::string bytes;
    std::u16string text;
  } rows[] = {{"", u""},
              {"1. a\rb\r\nc\n", u"1. a\rb\r\nc\n"},
              {"\xEF\xBB\xBF\u4E00", u"\u4E00"},
              {"\u4E00\u2574", u"\u4E00\u2574"},
              {"\xFF\xFE\x31\0\0\x4E\r\0"s, u"1\u4E00\r"},
              {"\xFE\xFF\0\x31\x4E\0"s, u"1\u4E00"},
              {"\xC0 8-bit", u"\u0440 8-bit"}};
  for (const auto& row : rows) {
    const PaperFile opened = OpenText(row.bytes);
    EXPECT_EQ(opened.result, WordResult::Done);
    EXPECT_EQ(opened.paper.source.characters, row.text);
    EXPECT_EQ(opened.paper.source.emphasis.size(), row.text.size());
  }
}

TEST_F(PaperFileTest, FailsClearly) {
  const auto large = WriteBytes(folder / "large.txt", "1. a");
  std::filesystem::resize_file(large, (std::size_t{64} << 20) + 1);
  EXPECT_EQ(Open(large).result, WordResult::TooLarge);
  EXPECT_EQ(Open(folder / "missing.txt").result, WordResult::NotFound);
  EXPECT_EQ(Open(folder / "missing.docx").result, WordResult::NotFound);
  EXPECT_EQ(Open(folder.Path()).result, WordResult::CannotAccess);
  std::filesystem::create_directory(folder / "folder.txt");
  EXPECT_EQ(Open(folder / "folder.txt").result, WordResult::CannotAccess);
  EXPECT_EQ(OpenText("1. a\0B"s).result, WordResult::UnknownFormat);
  EXPECT_EQ(OpenText("1. a\0B"s).paper.source.Size(), 0U);
  EXPECT_EQ(Open(WriteBytes(folder / "empty.docx", "")).result, WordResult::UnknownFormat);
}

}  // namespace
}  // namespace quorvantis::test
