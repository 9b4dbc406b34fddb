// SPDX-License-Identifier: MIT
// What holds for every exam.
#include "CheckTest.h"
#include "check/CheckRules.h"
#include "check/IgnoredFindings.h"
#include "model/AnswerLetters.h"

#include <algorithm>
#include <chrono>
#include <random>

namespace quorvantis::test {
namespace {

class RandomExams : public CheckTest {
 protected:
  std::size_t Below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
  }

  std::u16string Word() {
    std::u16string word;
    for (std::size_t i = 0; i < 6; ++i) word.push_back(static_cast<char16_t>(u'a' + Below(26)));
    return word;
  }
  std::u16string Sentence(std::size_t words) {
    std::u16string sentence = u"Name";
    for (std::size_t i = 0; i < words; ++i) sentence += u" " + Word();
    return sentence;
  }

  /// Text with everything that rules look for, in any order.
  std::u16string WildText() {
    static const std::u16string kParts[] = {u"<b>",
                                            u"</b>",
                                            u"<",
                                            u"<@>",
                                            u"____",
                                            u"_ ",
                                            u"(",
                                            u" )",
                                            u"not",
                                            u"?",
                                            u"\xD800",
                                            u"\xDC00",
                                            u"\uFFFD",
                                            u"see question 2",
                                            u"the picture above",
                                            u"A and B",
                                            u"all of the above",
                                            u"\r\n",
                                            u"аb",
                                            u"不",
                                            u"如图",
                                            u"كل ما سبق",
                                            u"\0x",
                                            u"word",
                                            u" ",
                                            u"12",
                                            u"&nbsp;",
                                            u"\u3000"};
    std::u16string text;
    for (std::size_t i = Below(30); i > 0; --i) text += kParts[Below(std::size(kParts))];
    return Below(40) == 0 ? text + std::u16string(Below(5000), u'x') : text;
  }

  void FillWildly() {
    exam.title = WildText();
    exam.randomMode = static_cast<RandomMode>(Below(4));
    exam.scoreMode = static_cast<ScoreMode>(Below(3));
    for (std::size_t i = 0; i < kScoreRanges; ++i) {
      exam.scoreFrom[i] = static_cast<int>(Below(60)) - 20;
      exam.scoreTo[i] = static_cast<int>(Below(700)) - 100;
      exam.scoreValue[i] = static_cast<float>(Below(30)) - 5;
    }
    for (int number = 1; number <= 12; ++number) {
      ExamQuestion& question = exam.Question(number) = {};
      question.kind = static_cast<QuestionKind>(Below(6));
      if (Below(3) > 0) question.text = WildText();
      for (std::u16string& option : question.options) option = Below(2) == 0 ? WildText() : u"";
      question.answerLetters = WildText() + u"ac";
      question.answerText = WildText();
      question.essayAnswer = WildText();
      if (Below(3) == 0) question.attachmentPaths[0] = WildText() + u".png";
    }
  }

  /// Nothing is wrong with it.
  void FillSoundly(int count) {
    for (int number = 1; number <= count; ++number) {
      ExamQuestion& question = exam.Question(number) = {};
      question.text = Sentence(4);
      question.kind = static_cast<QuestionKind>(Below(4));
      for (std::size_t i = 0; i < 4; ++i) question.options[i] = Word();
      question.answerLetters = AnswerMaskToLetters(AnswerBoxWeight(static_cast<std::size_t>(number % 4)));
      if (question.kind == QuestionKind::Choice) continue;
      question.options = {};
      question.answerLetters.clear();
      if (question.kind == QuestionKind::FillIn) question.text += u" ____ " + Word() + u" ____.";
      if (question.kind == QuestionKind::FillIn) question.answerText = Word() + u"<@>" + Word();
      if (question.kind == QuestionKind::Essay) question.essayAnswer = Sentence(9);
    }
  }

  bool IsPlaceOfExam(const TextPlace& place) const {
    if (place.question < 0 || place.question > kMaxQuestions) return false;
    const bool isFile = place.field == ExamFieldName::AttachmentName;
    if (place.question == 0)
      return isFile ? !exam.examAttachmentPaths.at(place.index).empty() : place.index < kScoreRanges;
    return isFile ? !exam.Question(place.question).attachmentPaths.at(place.index).empty()
                  : place.index < kOptionCount;
  }

  std::mt19937 random{20260101};
};

TEST_F(RandomExams, HaveFindingsAtPlacesThatExist) {
  for (int round = 0; round < 300; ++round) {
    FillWildly();
    const std::vector<Finding> findings = Check();
    for (const Finding& finding : findings) {
      EXPECT_TRUE(IsPlaceOfExam(finding.place)) << finding.rule << " " << finding.place.question;
      EXPECT_NE(FindCheckRule(finding.rule), nullptr);
      EXPECT_FALSE(finding.text.empty());
    }
    ASSERT_EQ(findings, Check()) << "the same again";
  }
}

TEST_F(RandomExams, HaveNoFindingsIfTheyAreSound) {
  for (const int count : {0, 1, 60, 500}) {
    FillSoundly(count);
    EXPECT_EQ(Found(), Rules{}) << count;
  }
}

TEST_F(RandomExams, TakeTimeInProportionToTheirTexts) {
  const std::u16string parts[] = {u"<b>",    u"</i>",  u"a<b ", u"_ ",    u"( ",
                                  u"&nbsp;", u"not? ", u"x\n",  u"\xD800"};
  for (const std::u16string& part : parts) {
    std::u16string text;
    while (text.size() < 200'000) text += part;
    exam.Question(1) = Choice(text, {text, text}, u"a");
    exam.Question(2) = FillIn(text, text);
    const auto begin = std::chrono::steady_clock::now();
    Check();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5)) << Utf16ToUtf8(part);
  }
}

TEST_F(RandomExams, ForgetOnlyWhatIsIgnored) {
  FillSoundly(5);
  exam.Question(2) = Choice(Sentence(4), {Word(), Word()}, u"");
  exam.Question(4) = Choice(Sentence(4), {Word(), Word()}, u"");
  const std::vector<Finding> findings = Check();
  ASSERT_EQ(findings.size(), 2U);
  std::filesystem::create_directories(folder / "app");
  IgnoredFindings ignored(folder / "app", files);
  ignored.Open("/home/teacher/a\n[b].exm");
  ignored.Add(findings[0], exam);
  const auto isIgnored = [this](const std::filesystem::path& file, const Finding& finding) {
    IgnoredFindings again(folder / "app", files);
    again.Open(file);
    return again.Has(finding, exam);
  };
  EXPECT_TRUE(isIgnored("/home/teacher/a\n[b].exm", findings[0]));
  EXPECT_FALSE(isIgnored("/home/teacher/a\n[b].exm", findings[1]));
  EXPECT_FALSE(isIgnored("/home/teacher/other.exm", findings[0]));
  std::swap(exam.Question(2), exam.Question(4));
  EXPECT_TRUE(ignored.Has(findings[1], exam)) << "the question has moved to 4";
  EXPECT_FALSE(ignored.Has(findings[0], exam));
  exam.Question(4).options[0] = u"changed";
  EXPECT_FALSE(ignored.Has(findings[1], exam));
  std::swap(exam.Question(2), exam.Question(4));
  ignored.TakeTo("/home/teacher/copy.exm");
  ignored.Add(findings[0], exam);
  ignored.Remove(findings[0], exam);
  EXPECT_FALSE(isIgnored("/home/teacher/copy.exm", findings[0]));
  for (std::size_t i = 0; i < IgnoredFindings::kMostExams + 5; ++i) {
    ignored.Open("/exam" + std::to_string(i));
    ignored.Add(findings[1], exam);
  }
  EXPECT_FALSE(isIgnored("/exam3", findings[1])) << "the oldest ones go";
  EXPECT_TRUE(isIgnored("/exam9", findings[1]));
}

}  // namespace
}  // namespace quorvantis::test
