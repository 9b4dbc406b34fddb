// SPDX-License-Identifier: MIT
#include "render/RenderTest.h"
#include "render/sheets/KeyTable.h"
#include "render/sheets/PaperPage.h"
#include "render/sheets/ReadingDirection.h"
#include "render/sheets/SheetPages.h"
#include "render/sheets/SheetParts.h"
#include "text/HtmlEscape.h"

#include <random>

namespace quorvantis::test {
namespace {

class SheetsTest : public RenderTest {
 protected:
  ExamQuestion& AddChoice(std::u16string text, OptionTexts options, std::u16string letters) {
    ExamQuestion& question = Add(QuestionKind::Choice, std::move(text));
    question.options = std::move(options);
    question.answerLetters = std::move(letters);
    return question;
  }
  std::string Sheet(quorvantis::Sheet sheet, SheetHead head = {}) const {
    return Utf16ToUtf8(ComposeSheet(exam, {sheet, std::move(head)}));
  }
};

/// What the browser makes of escaped text.
std::u16string Unescaped(std::u16string text) {
  const std::pair<std::u16string_view, std::u16string_view> escapes[] = {
      {u"&lt;", u"<"}, {u"&gt;", u">"}, {u"&quot;", u"\""}, {u"&amp;", u"&"}};
  for (const auto& [escape, unit] : escapes) {
    for (std::size_t at = 0; (at = text.find(escape, at)) != text.npos; ++at)
      text.replace(at, escape.size(), unit);
  }
  return text;
}

TEST_F(SheetsTest, NothingInATextCanEndItsField) {
  std::mt19937 random(7);
  const std::u16string_view parts[] = {u"</div>", u"<!--",  u"&lt;",     u"\"", u"'",     u"<script>",
                                       u"&",      u"plain", u"</title>", u"\n", u"\u0645"};
  for (int round = 0; round < 300; ++round) {
    std::u16string text;
    for (auto n = random() % 12; n > 0; --n) text += parts[random() % std::size(parts)];
    const std::u16string escaped = EscapeHtml(text);
    EXPECT_EQ(escaped.find_first_of(u"<>\""), escaped.npos);
    EXPECT_EQ(Unescaped(escaped), text);
  }
}

TEST_F(SheetsTest, WhatPupilsGetTellsNothingOfTheKey) {
  AddChoice(u"one", {u"x", u"y", u"z"}, u"a");
  Add(QuestionKind::FillIn, u"two").answerText = u"red";
  Add(QuestionKind::Essay, u"three").essayAnswer = u"long";
  std::vector<std::string> before;
  for (const auto sheet : {Sheet::Paper, Sheet::Answers, Sheet::Solutions, Sheet::Key})
    before.push_back(this->Sheet(sheet));
  exam.Question(1).answerLetters = u"bc";
  exam.Question(2).answerText = u"blue<@>green";
  exam.Question(3).essayAnswer = u"else";
  EXPECT_EQ(this->Sheet(Sheet::Paper), before[0]);
  EXPECT_EQ(this->Sheet(Sheet::Answers), before[1]);
  for (const auto sheet : {Sheet::Solutions, Sheet::Key}) {
    const std::string now = this->Sheet(sheet);
    EXPECT_NE(now.find("blue / green"), std::string::npos);
    EXPECT_NE(now.find("else"), std::string::npos);
    EXPECT_EQ(now.find("red"), now.find("red;"));  // nothing is left of the old key
  }
}

TEST_F(SheetsTest, OptionsKeepTheLettersOfTheirFields) {
  AddChoice(u"hole", {u"first", u"", u"third"}, u"c");
  const std::string solutions = Sheet(Sheet::Solutions);
  EXPECT_NE(solutions.find(R"(option right"><div class="letter"><b>C</b></div><div class="text">third)"),
            std::string::npos);
  EXPECT_EQ(CountOf("class=\"option", solutions), 2);
}

TEST_F(SheetsTest, AnswerSheetsHaveBoxesForChoicesUnderTheirNumbers) {
  Add(QuestionKind::FillIn, u"first");
  for (int i = 0; i < 100; ++i) AddChoice(u"choice", {u"x", u"y"}, u"a");
  const std::string sheet = Sheet(Sheet::Answers, {u"B", u"1f2e"});
  EXPECT_EQ(CountOf("<i>E</i>", sheet), 100);
  EXPECT_EQ(CountOf("class=\"ten\"", sheet), 10);
  EXPECT_NE(sheet.find("<b>101</b>"), std::string::npos);
  EXPECT_EQ(sheet.find("<b>1</b>"), std::string::npos);
  EXPECT_NE(sheet.find("<bdi>1f2e</bdi>"), std::string::npos);
}

TEST_F(SheetsTest, FilesAreAddressedFromThePage) {
  ExamQuestion& question = AddChoice(u"picture", {u"x", u"y"}, u"a");
  question.attachmentPaths[0] = PathToText(world.services.applicationFolder / "~TEMP" / "a" / "100% #1.png");
  question.attachmentNames[0] = u"\"100%\".png";
  question.attachmentPaths[1] = PathToText(world.services.applicationFolder / "~TEMP" / "a" / "song.mp3");
  question.attachmentNames[1] = u"song.mp3";
  const std::string paper = Sheet(Sheet::Paper);
  EXPECT_NE(paper.find(R"(<img src="~TEMP/a/100%25%20%231.png" data-name="&quot;100%&quot;.png">)"),
            std::string::npos);
  EXPECT_NE(paper.find(R"(<bdi class="name">song.mp3</bdi>)"), std::string::npos);
}

TEST_F(SheetsTest, KeysBecomeATable) {
  AddChoice(u"one", {u"x", u"y", u"z"}, u"ca?a");
  Add(QuestionKind::FillIn, u"two").answerText = u"=1+2<@>\"b\"";
  Add(QuestionKind::Oral, u"three");
  exam.scoreMode = ScoreMode::Custom;
  exam.scoreFrom = {1, 3};
  exam.scoreTo = {2, 3};
  exam.scoreValue = {2.5F, 1};
  EXPECT_EQ(KeyCsv(KeyTable(exam)),
            "\xEF\xBB\xBFquestion,kind,key,score\r\n"
            "1,choice,A C,2.5\r\n2,fillin,\"'=1+2 / \"\"b\"\"\",2.5\r\n3,oral,,1\r\n");
}

TEST_F(SheetsTest, NoFieldIsAFormula) {
  const std::pair<std::u16string, std::string> fields[] = {
      {u"-5", "-5"},      {u"+3.5", "+3.5"},   {u"-1+cmd", "'-1+cmd"},
      {u" =A1", "' =A1"}, {u"@SUM", "'@SUM"},  {u"\t=1", "\"'\t=1\""},
      {u"A C", "A C"},    {u"1.2.3", "1.2.3"}, {u"-1.2.3", "'-1.2.3"}};
  for (const auto& [field, line] : fields) EXPECT_EQ(CsvLine({field}), line + "\r\n");
}

TEST_F(SheetsTest, PagesRunAsTheExamDoesAndOtherwiseAsTheLanguage) {
  EXPECT_TRUE(RunsRightToLeft(exam, true));
  EXPECT_FALSE(RunsRightToLeft(exam, false));
  AddChoice(u"<font color=red>\u0645\u0627 \u0647\u064A</font> 12", {u"\u0646\u0639\u0645", u"B"}, u"a");
  EXPECT_TRUE(RunsRightToLeft(exam, false));
  exam.title = u"A rather long English title";
  EXPECT_FALSE(RunsRightToLeft(exam, true));
}

/// On a page of its own a question looks as it does on the paper, with its number and score there.
TEST_F(SheetsTest, AQuestionByItselfIsThatOfThePaper) {
  AddChoice(u"one <b>", {u"x", u"y"}, u"a");
  Add(QuestionKind::Essay, u"two").attachmentPaths[0] = u"/picture.png";
  Add(QuestionKind::FillIn, u"three __");
  exam.scoreMode = ScoreMode::Custom;
  exam.scoreFrom[0] = 1;
  exam.scoreTo[0] = 3;
  exam.scoreValue[0] = 2.5F;
  const std::string paper = Sheet(Sheet::Paper);
  for (int number = 1; number <= 4; ++number) {
    const std::string page = Utf16ToUtf8(ComposeQuestion(exam, number, {}));
    const std::size_t begin = page.find("<div class=\"row\">");
    EXPECT_EQ(begin != page.npos, number <= 3);
    if (begin == page.npos) continue;
    const std::string row = page.substr(begin, page.find("<div class=\"reserve\">") - begin - 7);
    EXPECT_NE(paper.find(row), paper.npos) << row;
    EXPECT_EQ(CountOf("class=\"number\"", page), 1);
    EXPECT_EQ(CountOf("<input", page), 0);
  }
}

}  // namespace
}  // namespace quorvantis::test
