// SPDX-License-Identifier: MIT
#include "import/LineEnds.h"
#include "import/WordPaper.h"
#include "import/WordPaperReader.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace quorvantis::test {
namespace {

TEST(WordPaper, PutsTextsInThePlacesOfPicturesAndFormulas) {
  WordDocument document;
  document.pictures = 3;
  document.runningText = {u"a\u2574b\r",
                          {{0, WordObjectKind::Picture, 0},
                           {2, WordObjectKind::Equation, 0},
                           {2, WordObjectKind::Picture, 2},
                           {4, WordObjectKind::Equation, 0}}};
  document.tables.push_back({{{{u"c\r\a", {{1, WordObjectKind::Picture, 1}}}, {u"\u2574\r\a", {}}}, {}}});
  const PaperContent paper = PaperFromWord(document, 9);
  EXPECT_EQ(paper.text, u" 9.bmp a_## 11.bmp b\r##");
  ASSERT_EQ(paper.tables.size(), 1U);
  EXPECT_EQ(paper.tables[0].Cell(1, 1), u"c 10.bmp \r\a");
  EXPECT_EQ(paper.tables[0].Cell(1, 2), u"_\r\a");
  EXPECT_EQ(paper.nextPicture, 12);
  EXPECT_EQ(paper.formulas, 2U);
}

/// A document of empty pictures, each a file of 600 MB that takes no room.
class LargePictures : public WordReader, public OpenWordDocument {
 public:
  WordReadOutcome Open(const std::filesystem::path&, const WordReadOptions&) override {
    auto document = std::make_unique<LargePictures>();
    document->content_.pictures = 4;
    return {WordResult::Done, std::move(document)};
  }
  const WordDocument& Content() const override { return content_; }
  WordResult SavePicture(std::size_t, const std::filesystem::path& file) override {
    WriteBytes(file, "");
    std::filesystem::resize_file(file, 600'000'000);
    return WordResult::Done;
  }

 private:
  WordDocument content_;
};

TEST(WordPaper, KeepsPicturesWithinBoundsAndNoneOfACancelledImport) {
  const TemporaryFolder folder;
  LargePictures documents;
  WordPaperReader reader(documents, folder / "~TEMP");
  PaperReading reading;
  const auto lost = reader.Read({}, reading).content->lostPictures;
  ASSERT_EQ(lost.size(), 2U);
  EXPECT_EQ(std::pair(lost[0].number, lost[0].reason), std::pair(3, WordResult::TooLarge));
  EXPECT_TRUE(std::filesystem::exists(folder / "~TEMP" / "2.bmp"));
  int asked = 0;
  reading.isCancelled = [&asked] { return ++asked == 2; };
  EXPECT_EQ(reader.Read({}, reading).result, WordResult::Cancelled);
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
  exam.Question(2).options[4] = std::u16string(kMaxOptionText - 1, u'x') + u"\r";
  exam.Question(3).essayAnswer = u"a\rb";
  EXPECT_EQ(CountLoneLineEnds(exam, 1, 3), 2);
  MendLineEnds(exam, 1, 3);
  EXPECT_EQ(CountLoneLineEnds(exam, 1, 3), 1) << "a text that would be cut stays as it is";
  EXPECT_EQ(exam.Question(3).essayAnswer, u"a\r\nb");
}

}  // namespace
}  // namespace quorvantis::test
