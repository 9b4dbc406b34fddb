// SPDX-License-Identifier: MIT
// Small exams, each with what is to be found in it: hits beside near misses.
#include "CheckTest.h"
#include "check/AnswerRules.h"
#include "check/CheckRules.h"
#include "check/KeyRules.h"
#include "check/Markup.h"
#include "check/WordScripts.h"

#include <fstream>
#include <set>

namespace quorvantis::test {
namespace {

class ExamCheck : public CheckTest {
 protected:
  void Expect(const ExamQuestion& question, const Rules& rules) {
    exam.Question(1) = question;
    exam.Question(2) = Essay(u"Describe the way of a drop of water.", u"Sea, cloud, rain.");
    Rules wanted;
    for (const std::string& rule : rules) wanted.push_back("1 " + rule);
    EXPECT_EQ(Found(), wanted) << Utf16ToUtf8(question.text);
  }
};

TEST_F(ExamCheck, OptionsAndKeys) {
  const std::u16string ask = u"What is blue?";
  Expect(Choice(ask, {u"sky", u"grass"}, u"a"), {});
  Expect(Choice(ask, {u"sky", u"grass"}, u""), {"choice-without-key"});
  Expect(Choice(ask, {u"sky", u"grass"}, u"C"), {"key-on-empty-option"});
  Expect(Choice(ask, {u"sky", u" ", u"grass"}, u"a"), {"option-gap"});
  Expect(Choice(ask, {u"sky", u"", u"grass"}, u"b"), {"key-on-empty-option"});
  Expect(Choice(ask, {u"sky"}, u"a"), {"too-few-options"});
  Expect(Choice(ask, {}, u""), {"choice-without-key", "too-few-options"});
  Expect(Choice(ask, {u"deep  sky", u"grass", u" deep sky\u00A0"}, u"a"), {"equal-options"});
  Expect(Choice(ask, {u"Aa", u"AA", u"aa"}, u"a"), {});
  Expect(Choice(u" \r\n", {u"sky", u"grass"}, u"a"), {"question-without-text"});
}

TEST_F(ExamCheck, Answers) {
  Expect(FillIn(u"The sea is ____.", u"blue"), {});
  Expect(FillIn(u"The sea is ____.", u" <@> "), {"fill-in-without-answer"});
  Expect(FillIn(u"The ____ is ____.", u"sea"), {"blanks-and-answers"});
  Expect(FillIn(u"The ____ is ____.", u"sea<@>blue<@>"), {});
  Expect(FillIn(u"Put the words into order.", u"sea<@>blue"), {});
  Expect(Essay(u"Describe the sea.", u"\r\n"), {"essay-without-answer"});
  ExamQuestion oral;
  oral.kind = QuestionKind::Oral;
  oral.text = u"Speak of the sea.";
  Expect(oral, {});
}

TEST(CountBlanks, CountsPlacesToFill) {
  const std::pair<const char16_t*, std::size_t> rows[] = {
      {u"snake_case", 0},    {u"a __ b ___", 2}, {u"h _ _ _ e", 1}, {u"____ ____", 2},
      {u"（　）和（ ）", 2}, {u"f( ) is", 0},    {u"＿＿", 1},      {u"<u>&nbsp; </u>", 1},
      {u"(1) ______", 1},    {u"( ) [ ]", 2},    {u"_", 0},         {u"", 0}};
  for (const auto& [text, blanks] : rows) EXPECT_EQ(CountBlanks(text), blanks) << Utf16ToUtf8(text);
}

TEST_F(ExamCheck, EmptyQuestionsAndLosses) {
  exam.Question(2) = Essay(u"Describe the sea.", u"Wide.");
  EXPECT_EQ(Found(), Rules{"1 empty-question"});
  exam.Question(1) = Essay(std::u16string(4096, u'a'), u"Wide.");
  EXPECT_EQ(Found(), Rules{"1 text-near-limit"});
  exam.Question(1) = Essay(std::u16string(4000, u'a'), u"Wide.");
  EXPECT_EQ(Found(), Rules{});
  exam.Question(1) = Essay(u"Wide?", std::u16string(4097, u'a'));
  exam.Question(3).essayAnswer = u"never stored";
  EXPECT_EQ(Found(), (Rules{"1 saving-loss", "3 saving-loss"}));
  EXPECT_EQ(Check()[0].place, (TextPlace{1, ExamFieldName::EssayAnswer}));
}

TEST_F(ExamCheck, Scores) {
  for (int n = 1; n <= 4; ++n)
    exam.Question(n) = FillIn(u"Number " + std::u16string(1, u"0abcd"[n]) + u"?", u"x");
  struct Row {
    std::array<int, kScoreRanges> from, to;
    std::array<float, kScoreRanges> value;
    Rules rules;
  };
  const Row rows[] = {
      {{1, 3}, {2, 4}, {1, 2}, {}},
      {{1, 3}, {2, 500}, {1, 2}, {}},
      {{1, 2}, {2, 4}, {1, 2}, {"0 score-ranges-overlap"}},
      {{1, 4}, {2, 4}, {1, 2}, {"0 questions-without-score"}},
      {{1, 3}, {2, 4}, {1, 0}, {"0 score-of-zero"}},
      {{1, 3}, {2, 4}, {1.25F, 2}, {"0 odd-score-sum"}},
      {{1, 3}, {2, 4}, {25, 24}, {"0 odd-score-sum"}},
      {{1, 3}, {2, 4}, {25, 25}, {}},
      {{1, -4, 7}, {4, -1, 5}, {1, 2, 3}, {}},
  };
  EXPECT_EQ(Found(), Rules{}) << "one score has no ranges";
  exam.scoreMode = ScoreMode::Custom;
  for (const Row& row : rows) {
    exam.scoreFrom = row.from;
    exam.scoreTo = row.to;
    exam.scoreValue = row.value;
    EXPECT_EQ(Found(), row.rules) << row.from[1] << row.to[1] << row.value[1];
  }
}

TEST_F(ExamCheck, Wording) {
  const ExamQuestion all = Choice(u"What is blue?", {u"sky", u"sea", u"All of the above"}, u"c");
  Expect(all, {});
  exam.randomMode = RandomMode::Options;
  Expect(all, {"shuffled-option"});
  EXPECT_EQ(Check()[0].place.index, 2U);
  exam.randomMode = RandomMode::Sequence;
  Expect(all, {});
  Expect(Essay(u"Explain your answer to question 2.", u"x"), {"shuffled-question"});
  exam.randomMode = RandomMode::Off;
  Expect(Essay(u"Look at the picture below. What do you see?", u"x"), {"picture-without-file"});
  Expect(Essay(u"Look at the picture below. <img src='a.png'>", u"x"), {});
  const OptionTexts options{u"whale", u"bat", u"shark"};
  Expect(Choice(u"Which of these is not a mammal?", options, u"c"), {"plain-negation"});
  Expect(Choice(u"Which of these is NOT a mammal?", options, u"c"), {});
  Expect(Choice(u"Which of these is <b>not</b> a mammal?", options, u"c"), {});
  Expect(Choice(u"Fish do not breathe air. Which of these is a mammal?", options, u"a"), {});
  Expect(Choice(u"下列不属于哺乳动物的是", {u"海豚", u"鲸鲨"}, u"b"), {"plain-negation"});
  Expect(Choice(u"下列哪一个与其他的不同？", {u"海豚", u"鲸鲨"}, u"b"), {});
  exam.Question(1) = Essay(u"Describe it.", u"x");
  Attach(exam.Question(1), "heart.gif", "GIF89a;");
  EXPECT_EQ(Found(), Rules{"1 picture-without-words"});
  exam.Question(2) = Essay(u"What does the picture above show?", u"x");
  exam.Question(1).text = u"Describe the heart.";
  EXPECT_EQ(Found(), Rules{}) << "a word of the file's name, and the picture of the question before";
}

TEST_F(ExamCheck, KeysOfTheWholeExam) {
  for (int n = 1; n <= 24; ++n) {
    const std::u16string name(1, static_cast<char16_t>(u'a' + n));
    exam.Question(n) = Choice(name + u" river?", {u"one", u"two", u"six", u"ten"}, n % 3 == 0 ? u"a" : u"b");
  }
  EXPECT_EQ(Found(), Rules{"0 skewed-keys"});
  for (int n = 1; n <= 24; ++n) {
    exam.Question(n).answerLetters = std::u16string(1, u"abcd"[n % 4]);
    if (n > 7) exam.Question(n).options[static_cast<std::size_t>(n % 4)] += u" indeed";
  }
  EXPECT_EQ(Found(), Rules{"0 longest-is-right"});
  exam.Question(8).options[0] = u"one";
  EXPECT_EQ(Found(), Rules{}) << "two thirds are not more than two thirds";
  EXPECT_FALSE(AreSkewed({12, 8, 5, 5}));
  EXPECT_TRUE(AreSkewed({17, 3}));
}

TEST_F(ExamCheck, NearlyEqualQuestions) {
  const std::u16string passage(900, u'p');
  struct Row {
    ExamQuestion first, second;
    bool isEqual;
  };
  const OptionTexts metals{u"iron", u"copper", u"zinc"};
  const OptionTexts cities{u"Paris", u"Rome", u"Bern"};
  const Row rows[] = {
      {Choice(u"Which metal conducts electricity best?", metals, u"b"),
       Choice(u"Which  metal conducts <b>electricity</b> best ?", metals, u"c"), true},
      {Choice(u"Which metal conducts electricity best?", metals, u"b"),
       Choice(u"Which metal conducts electricty best?", {u"zinc", u"iron", u"copper"}, u"c"), true},
      {Choice(u"Which is the largest planet?", metals, u"b"),
       Choice(u"Which is the smallest planet?", metals, u"b"), false},
      {Choice(u"Which of these is right?", metals, u"b"), Choice(u"Which of these is right?", cities, u"a"),
       false},
      {FillIn(u"How much is 17 times 23, please?", u"391"),
       FillIn(u"How much is 17 times 24, please?", u"408"), false},
      {Essay(passage + u"\r\nWho speaks?", u"x"), Essay(passage + u"\r\nWhy is it dark?", u"x"), false},
      {Essay(passage + u"\r\nWho speaks?", u"x"), Essay(passage + u"\nwho speaks", u"x"), true},
      {FillIn(u"海水为什么是咸的？", u"盐"), FillIn(u"海水为什么是咸的", u"盐"), true},
  };
  for (const Row& row : rows) {
    exam.Question(1) = row.first;
    exam.Question(2) = Essay(u"Describe the way of a drop of water.", u"Sea, cloud, rain.");
    exam.Question(3) = row.second;
    EXPECT_EQ(Found(), row.isEqual ? Rules{"3 nearly-equal-questions"} : Rules{})
        << Utf16ToUtf8(row.second.text);
  }
}

TEST_F(ExamCheck, Files) {
  const std::string png = "\x89PNG\r\n\x1A\n....IHDR....IDAT....IEND....";
  const std::string jpeg(
      "\xFF\xD8\xFF\xE0\0\x06"
      "\xFF\xD9"
      "ab\xFF\xDA\0\x02"
      "data\xFF\xD9",
      20);
  const std::pair<const char*, std::string> rows[] = {
      {"a.png", png},
      {"a.png", png.substr(0, 24)},
      {"a.jpg", jpeg},
      {"a.jpg", jpeg.substr(0, 18)},
      {"a.JPEG", png},
      {"a.gif", "not found"},
      {"a.gif", "GIF89a...;"},
      {"a.gif", "GIF89a..."},
      {"a.pdf", "%PDF-1.4 ... %%EOF\n"},
      {"a.pdf", "%PDF-1.4 ..."},
      {"a.docx", "PK\x03\x04...PK\x05\x06..."},
      {"a.docx", "PK\x03\x04..."},
      {"a.docx", "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + std::string(600, 'x')},
      {"a.doc", "{\\rtf1 }"},
      {"a.mp3", std::string("\xFF\xFB\x90\0\x01", 5)},
      {"a.mp3", "<html>gone</html>"},
      {"a.zip", "PK\x03\x04...PK\x05\x06..."},
      {"a.txt", "anything"},
      {"a.txt", ""},
  };
  const Rules wanted[] = {{},
                          {"file-damaged"},
                          {},
                          {"file-damaged"},
                          {"file-misnamed"},
                          {"file-damaged"},
                          {},
                          {"file-damaged"},
                          {},
                          {"file-damaged"},
                          {},
                          {"file-damaged"},
                          {"file-misnamed"},
                          {},
                          {},
                          {"file-damaged"},
                          {"file-not-shown"},
                          {},
                          {"file-empty"}};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    SCOPED_TRACE(rows[i].first + rows[i].second);
    ExamQuestion question = Essay(u"Look at the picture.", u"x");
    Attach(question, rows[i].first, rows[i].second);
    Expect(question, wanted[i]);
  }
  ExamQuestion question = Essay(u"Look at the picture.", u"x");
  Attach(question, "a.png", png);
  Attach(question, "b.mp4", std::string("\0\0\0 ftyp", 8));
  std::filesystem::remove(folder / "a.png");
  std::filesystem::resize_file(folder / "b.mp4", 50 * 1024 * 1024 + 1);
  Expect(question, {"file-missing", "file-too-large"});
  EXPECT_EQ(Check()[1].place, (TextPlace{1, ExamFieldName::AttachmentName, 1}));
  exam.displayNamesAmongPaths = {u"/etc/hostname"};
  exam.examAttachmentPaths[0] = u"/etc/hostname";
  EXPECT_EQ(Found()[0], "0 file-missing") << "a name that is no path is not opened";
}

TEST(Markup, FindsWhatIsUnmatchedOrHidden) {
  struct Row {
    const char16_t* text;
    std::size_t unmatched, hidden;
  };
  const Row rows[] = {{u"a<b>c</b>", 0, 0},
                      {u"a<B>c", 1, 0},
                      {u"c</i>", 1, 0},
                      {u"<b><i>x</b></i>", 0, 0},
                      {u"<p>x<br>y<li>", 0, 0},
                      {u"<stdio.h>", 0, 1},
                      {u"if a<b then", 0, 1},
                      {u"a < b, 1<2", 0, 0},
                      {u"<font color='red'>x</font>", 0, 0},
                      {u"x<y and y>z", 0, 1},
                      {u"<a title='1>0'>x</a>", 0, 0},
                      {u"<!-- <b> -->c", 0, 0},
                      {u"love</3 you", 0, 1},
                      {u"<!doctype html><?xml x?>", 0, 0},
                      {u"The <title>x</title>", 0, 2},
                      {u"<", 0, 0},
                      {u"</", 0, 0}};
  for (const Row& row : rows) {
    const MarkupFaults faults = FindMarkupFaults(row.text);
    EXPECT_EQ(faults.unmatched.size(), row.unmatched) << Utf16ToUtf8(row.text);
    EXPECT_EQ(faults.hidden.size(), row.hidden) << Utf16ToUtf8(row.text);
    EXPECT_FALSE(faults.swallowing) << Utf16ToUtf8(row.text);
    EXPECT_TRUE(faults.changingPage.empty()) << Utf16ToUtf8(row.text);
  }
}

TEST(Markup, FindsWhatHarmsThePage) {
  struct Row {
    const char16_t *text, *changing, *swallowing;
  };
  const Row rows[] = {{u"<style>b{}</style> x", u"<style>", u""},
                      {u"a <SCRIPT src='x'>'<b'</ScRipt > x", u"<SCRIPT src='x'>", u""},
                      {u"<base href=x>", u"<base href=x>", u""},
                      {u"<meta charset=x>", u"<meta charset=x>", u""},
                      {u"<body lang=x>", u"<body lang=x>", u""},
                      {u"<frameset>", u"<frameset>", u""},
                      {u"<body><html>x</body>", u"", u""},
                      {u"&lt;style> <stylus> </style>", u"", u""},
                      {u"<!-- <style> --> x", u"", u""},
                      {u"<style>b{} x", u"<style>", u"<style>"},
                      {u"a <!-- b <i> - -> c", u"", u"<!--"},
                      {u"<!--> x <!---> x <!-- --!> x <!---- -->", u"", u""},
                      {u"x <title>y", u"", u"<title>"},
                      {u"<textarea>y</text> </textareas>", u"", u"<textarea>"},
                      {u"<textarea>y<b></TEXTAREA>", u"", u""},
                      {u"<xmp><b></xmp> <plaintext>y</plaintext>", u"", u"<plaintext>"},
                      {u"<iframe src=x/>y", u"", u"<iframe src=x/>"},
                      {u"<svg/><details>x<select>y</select>", u"", u"<details>"},
                      {u"<a href=\"x>y</a>", u"", u"<a href=\""},
                      {u"<a href=it's>y</a> <a b='>' c = \">\">y</a>", u"", u""}};
  for (const Row& row : rows) {
    const MarkupFaults faults = FindMarkupFaults(row.text);
    const auto quoted = [&row](const TextSpan& span) { return std::u16string(span.Of(row.text)); };
    EXPECT_EQ(faults.changingPage.empty() ? u"" : quoted(faults.changingPage.front()), row.changing)
        << Utf16ToUtf8(row.text);
    EXPECT_EQ(faults.swallowing ? quoted(*faults.swallowing) : u"", row.swallowing) << Utf16ToUtf8(row.text);
  }
}

TEST(WordScripts, FindsLookAlikes) {
  const std::pair<const char16_t*, bool> rows[] = {
      {u"\u0421hemistry", true}, {u"м\u006Fлоко", true},
      {u"\u0041θήνα", true},     {u"μm, ΔG und β-Karotin", false},
      {u"SMSка", false},         {u"3D-модель", false},
      {u"Кот cat", false},       {u"h\u03BD", false},
      {u"naïve Übung", false},   {u"海水H2O", false}};
  for (const auto& [text, isMixed] : rows)
    EXPECT_EQ(FindMixedWord(text).has_value(), isMixed) << Utf16ToUtf8(text);
}

TEST_F(ExamCheck, Characters) {
  Expect(Essay(u"Caf\uFFFD?", u"x"), {"lost-character"});
  Expect(Essay(u"Half \xD83D?", u"x"), {"lost-character"});
  Expect(Essay(u"Whole \U0001F600?", u"x"), {});
  Expect(Essay(u"Is <b>this closed?", u"x"), {"unbalanced-markup"});
  Expect(Essay(u"Is <!-- this closed?", u"<style>x</style>"), {"page-markup", "swallowing-markup"});
  Expect(Choice(u"What does it need?", {u"<stdio.h>", u"none"}, u"a"), {"taken-for-markup"});
  EXPECT_EQ(Check()[0].place, (TextPlace{1, ExamFieldName::Options, 0}));
}

TEST(CheckRules, HaveIdentifiersThatTheDocumentExplains) {
  std::ifstream file(QUORVANTIS_PROJECT "/docs/CHECKS.md");
  const std::string text(std::istreambuf_iterator<char>(file), {});
  constexpr const char* kWords[] = {"wrong", "doubtful", "hint"};
  std::set<std::string_view> ids;
  std::size_t last = 0;
  for (const CheckRuleRow& row : CheckRules()) {
    EXPECT_TRUE(ids.insert(row.id).second) << row.id;
    EXPECT_EQ(FindCheckRule(row.id), &row);
    const std::string line =
        "| `" + std::string(row.id) + "` | " + kWords[static_cast<std::size_t>(row.severity)] + " | ";
    const std::size_t place = text.find(line);
    EXPECT_NE(place, text.npos) << line;
    EXPECT_GT(place, last) << row.id << " is out of order";
    last = place;
  }
}

}  // namespace
}  // namespace quorvantis::test
