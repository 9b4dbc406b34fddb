// SPDX-License-Identifier: MIT
#include "import/LineEnds.h"
#include "import/WordReader.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace quorvantis::test {
namespace {

/// A document as it was typed, with pictures of two pixels.
class TypedDocuments : public WordDocuments {
 public:
  WordReadOutcome Open(const std::filesystem::path&, const WordReadOptions&) override {
    return {WordResult::Done, document, std::make_unique<Pictures>()};
  }

  WordContent document;

 private:
  class Pictures : public WordPictures {
   public:
    WordResult Read(std::size_t picture, PixelGrid& pixels) override {
      pixels = {1, 2, {255, 0, 0, 255, 255, 255}};
      return picture == 2 ? WordResult::Damaged : WordResult::Done;
    }
  };
};

class WordReaderTest : public testing::Test {
 protected:
  WordReaderTest() {
    typed.document.pictures = 3;
    typed.document.runningText = {u"a\u2574b\r",
                                  {{0, WordObjectKind::Picture, 0},
                                   {2, WordObjectKind::Equation, 0},
                                   {2, WordObjectKind::Picture, 2},
                                   {4, WordObjectKind::Equation, 0}}};
    typed.document.tables.push_back(
        {{{{u"c\r\a", {{1, WordObjectKind::Picture, 1}}}, {u"\u2574\r\a", {}}}, {}}});
  }

  TemporaryFolder folder;
  TypedDocuments typed;
};

TEST_F(WordReaderTest, MakesPlainTextStepByStep) {
  WordReader reader(typed, folder / "~TEMP", {});
  ASSERT_TRUE(reader.OpenDocument({}, false));
  reader.ReplaceBoxCharacters();
  EXPECT_EQ(reader.SavePictures(9), 12);
  EXPECT_EQ(reader.Document().runningText.objects.size(), 2U);
  EXPECT_EQ(reader.MaskFormulas(), 2U);
  EXPECT_EQ(reader.Document().runningText.characters, u" 9.bmp a_## 11.bmp b\r##");
  EXPECT_EQ(reader.Document().tables[0].rows[0][0].characters, u"c 10.bmp \r\a");
  EXPECT_EQ(reader.Document().tables[0].rows[0][1].characters, u"_\r\a");
  ASSERT_EQ(reader.LostPictures().size(), 1U);
  EXPECT_EQ(reader.LostPictures()[0].number, 11);
  reader.CloseDocument();
  reader.QuitWordProcessor();
  EXPECT_EQ(reader.TextToString({}).text, u"");

  using namespace std::literals;
  EXPECT_EQ(ReadBytes(folder / "~TEMP" / "9.bmp"),
            "BM\x3E\0\0\0\0\0\0\0\x36\0\0\0"
            "\x28\0\0\0\x01\0\0\0\x02\0\0\0\x01\0\x18\0\0\0\0\0\x08\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
            "\xFF\xFF\xFF\0\0\0\xFF\0"
            "\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s);
}

TEST_F(WordReaderTest, KeepsNoPictureOfACancelledImport) {
  int asked = 0;
  WordReader reader(typed, folder / "~TEMP", {[&asked] { return ++asked == 2; }, {}});
  ASSERT_TRUE(reader.OpenDocument({}, false));
  EXPECT_EQ(reader.SavePictures(1), std::nullopt);
  EXPECT_EQ(reader.Result(), WordResult::Cancelled);
  EXPECT_FALSE(std::filesystem::exists(folder / "~TEMP" / "1.bmp"));
}

TEST(LineEnds, AreMendedWhereTheFieldHasRoom) {
  const struct {
    std::u16string text;
    bool isLone;
    std::u16string mended;
  } rows[] = {{u"", false, u""},
              {u"a\r\nb", false, u"a\r\nb"},
              {u"a\rb\r", true, u"a\r\nb\r\n"},
              {u"\n\r", true, u"\r\n\r\n"},
              {u"a\vb", false, u"a\r\nb"},
              {u"\r\n\n", true, u"\r\n\r\n"}};
  for (const auto& row : rows) {
    EXPECT_EQ(HasLoneLineEnd(row.text), row.isLone);
    EXPECT_EQ(WithWholeLineEnds(row.text), row.mended);
  }
  ExamPaper exam;
  exam.Question(2).options[4] = std::u16string(FieldNamed(ExamFieldName::Options).limit - 1, u'x') + u"\r";
  exam.Question(3).essayAnswer = u"a\rb";
  EXPECT_EQ(CountLoneLineEnds(exam, 1, 3), 2);
  MendLineEnds(exam, 1, 3);
  EXPECT_EQ(CountLoneLineEnds(exam, 1, 3), 1) << "a text that would be cut stays as it is";
  EXPECT_EQ(exam.Question(3).essayAnswer, u"a\r\nb");
}

}  // namespace
}  // namespace quorvantis::test
