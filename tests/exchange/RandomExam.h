// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/Blanks.h"
#include "exchange/form/ExchangedExam.h"
#include "exchange/markup/Markup.h"
#include "support/TemporaryFolder.h"

#include <iterator>
#include <random>
#include <string>

namespace quorvantis::test {

/// Makes exams with everything that an exam can have, and with texts that mean something in one format or
/// another. The same seed makes the same exam.
class RandomExam {
 public:
  RandomExam(const std::filesystem::path& folder, unsigned seed) : folder_(folder), random_(seed) {}

  ExchangedExam Make(std::size_t questions) {
    ExchangedExam exam;
    exam.title = Text(false);
    exam.shufflesOptions = Chance(2);
    for (std::size_t i = 1; i <= questions; ++i) exam.questions.push_back(Question(static_cast<int>(i)));
    return exam;
  }

 private:
  bool Chance(std::size_t in) { return random_() % in == 0; }

  std::u16string Text(bool hasLines = true) {
    static const char16_t* const kPieces[] = {u"word ",
                                              u"A. ",
                                              u"B) ",
                                              u"ANSWER: B",
                                              u"=",
                                              u"~",
                                              u"#",
                                              u"{",
                                              u"}",
                                              u":",
                                              u"::",
                                              u"\\",
                                              u"\\n",
                                              u"//",
                                              u"%50%",
                                              u"->",
                                              u"$CATEGORY: x",
                                              u"[html]",
                                              u",",
                                              u";",
                                              u"\t",
                                              u"\"",
                                              u"'",
                                              u"@x",
                                              u"+1",
                                              u"-1",
                                              u"|",
                                              u"<b>bold</b> ",
                                              u"<i>",
                                              u"</i>",
                                              u"<sub>2</sub>",
                                              u"<u>u</u>",
                                              u"5 < 6 ",
                                              u"x<y ",
                                              u"&amp; ",
                                              u"&",
                                              u"]]>",
                                              u"<![CDATA[",
                                              u"]]",
                                              u"é",
                                              u"测试",
                                              u"\xD83D\xDE00",
                                              u"\u00A0",
                                              u"{1:SA:=x}",
                                              u"[[1]]",
                                              u"[x]",
                                              u"[blank1]",
                                              u"[Blankx2]",
                                              u"*",
                                              u"T",
                                              u"/",
                                              u"\u202E",
                                              u"top"};
    static const char16_t* const kStarts[] = {u"t",         u"t",        u"t",  u"t",         u"[html]t",
                                              u"[plain] t", u"[moodle]", u"A.", u"answer: B", u"%50%a"};
    std::u16string text = kStarts[random_() % std::size(kStarts)];
    for (std::size_t i = random_() % 7; i > 0; --i) {
      text += kPieces[random_() % std::size(kPieces)];
      if (hasLines && Chance(6)) text += u"\r\n";
    }
    return ReadExamText(text).text;
  }

  std::u16string Answer() { return PlainToExamText(ExamTextToPlain(Text(false))); }

  ExchangedQuestion Question(int number) {
    ExchangedQuestion question;
    question.number = number;
    question.kind = static_cast<QuestionKind>(random_() % 4);
    question.text = Text();
    if (question.kind == QuestionKind::Choice) AddOptions(question);
    if (question.kind == QuestionKind::FillIn) AddAnswers(question);
    if (question.kind == QuestionKind::Essay && Chance(2)) question.modelAnswer = Text();
    if (Chance(2)) question.score = static_cast<double>(random_() % 40) / 4;
    for (std::size_t i = random_() % 3; i > 0; --i) AddFile(question);
    const bool hasOthers =
        !question.options.empty() || question.blanks.size() == 1 || !question.files.empty();
    if (hasOthers && question.blanks.size() < 2 && Chance(8)) question.text.clear();
    return question;
  }

  void AddOptions(ExchangedQuestion& question) {
    const bool areShort = Chance(3);
    for (std::size_t i = random_() % 6; i > 0; --i)
      question.options.push_back({areShort ? ShortOption() : Text(), Chance(3)});
  }

  /// What could be taken for letters or numbers of options.
  std::u16string ShortOption() {
    static const char16_t* const kShort[] = {u"A", u"B", u"C", u"D", u"b",  u"AB",   u"BC",
                                             u"0", u"1", u"2", u"3", u"12", u"A. B", u"ANSWER: B"};
    return kShort[random_() % std::size(kShort)];
  }

  void AddAnswers(ExchangedQuestion& question) {
    for (std::size_t i = random_() % 4; i > 0; --i) question.text += u" ____" + Text();
    question.text = ReadExamText(question.text).text;
    std::vector<std::u16string> answers;
    for (std::size_t i = random_() % 4; i > 0; --i)
      answers.push_back(!answers.empty() && Chance(4) ? answers.back() : Answer() + Utf8Number());
    if (answers.size() > 1 && Chance(3)) answers[random_() % answers.size()].clear();
    question.blanks = ByBlank(question.text, answers);
  }

  void AddFile(ExchangedQuestion& question) {
    static const char16_t* const kEnds[] = {u".png", u".pdf", u" b.jpg", u".ogg", u"&é%20.gif", u""};
    std::u16string name = u"f" + PlainToExamText(Utf8Number()) + kEnds[random_() % std::size(kEnds)];
    if (!question.files.empty() && Chance(3)) name = question.files.back().name;
    std::string bytes;
    for (std::size_t i = random_() % 200; i > 0; --i) bytes.push_back(static_cast<char>(random_() % 256));
    question.files.push_back({name, WriteBytes(folder_ / ("f" + std::to_string(files_)), bytes)});
  }

  std::u16string Utf8Number() {
    const std::string digits = std::to_string(++files_);
    return {digits.begin(), digits.end()};
  }

  std::filesystem::path folder_;
  std::mt19937 random_;
  int files_ = 0;
};

}  // namespace quorvantis::test
