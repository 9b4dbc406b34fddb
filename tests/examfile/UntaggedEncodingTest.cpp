// SPDX-License-Identifier: MIT
#include "ExamBytes.h"
#include "examfile/UntaggedEncoding.h"
#include "platform/posix/IconvCodePage.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvantis::test {
namespace {

/// Words that the texts of an exam are built from.
struct Script {
  const char* codePage;
  std::vector<std::u16string> words;
  std::u16string blank;
};

const Script kScripts[] = {
    {"GBK",
     {u"What", u"is", u"the", u"capital", u"of", u"France?", u"Name", u"two", u"rivers,", u"H2O"},
     u" "},
    {"CP1252", {u"Où", u"est", u"la", u"forêt?", u"Straße", u"número", u"Français", u"été", u"1789"}, u" "},
    {"CP1251", {u"Столица", u"России", u"это", u"город", u"Москва", u"да", u"что", u"такое?", u"3"}, u" "},
    {"GBK", {u"中国", u"的", u"首都", u"是", u"哪里", u"？", u"下列", u"一", u"物理", u"A", u"，"}, u""},
    {"CP949", {u"한국의", u"수도는", u"어디", u"입니까", u"역사", u"과학", u"예"}, u" "}};

class UntaggedEncodingOf : public testing::TestWithParam<Script> {
 protected:
  std::u16string Words(int count) {
    std::u16string text;
    for (int i = 0; i < count; ++i) {
      if (i > 0) text += script.blank;
      text += script.words[random() % script.words.size()];
    }
    return text;
  }

  TypedExam RandomExam() {
    TypedExam exam{.title = Words(static_cast<int>(random() % 4)), .score = u"5", .shortNumbers = true};
    exam.questions.resize(1 + random() % 9);
    for (TypedQuestion& question : exam.questions) {
      question.kind = Digits(random() % 4);
      question.text = Words(static_cast<int>(random() % 20));
      if (random() % 2 == 0) question.letters = u"ac";
      for (auto& option : question.options) option = Words(static_cast<int>(random() % 3));
      if (random() % 2 == 0) question.answer = Words(1);
    }
    exam.questions[0].text = Words(8);  // so that there is something to judge by
    return exam;
  }

  std::u16string EightBit(const std::u16string& text) const {
    const std::string bytes = codePage.Encode(text).value();
    std::u16string units;
    for (const char byte : bytes) units.push_back(static_cast<unsigned char>(byte));
    return units;
  }

  TypedExam EightBit(TypedExam exam) const {
    exam.title = EightBit(exam.title);
    for (TypedQuestion& question : exam.questions) {
      for (std::u16string* text : {&question.text, &question.letters, &question.answer})
        *text = EightBit(*text);
      for (auto& option : question.options) option = EightBit(option);
    }
    return exam;
  }

  const Script& script = GetParam();
  const IconvCodePage codePage{script.codePage};
  std::mt19937 random{20};  // NOLINT(cert-msc51-cpp): the same exams every time
};

INSTANTIATE_TEST_SUITE_P(Texts, UntaggedEncodingOf, testing::ValuesIn(kScripts));

TEST_P(UntaggedEncodingOf, IsToldByTheTextsWhereNumbersFitBoth) {
  const Form wide{"", "", Units::WideInBytes, 0, false, u""}, narrow{"", "", Units::EightBit, 0, false, u""};
  for (int i = 0; i < 200; ++i) {
    const TypedExam exam = RandomExam();
    EXPECT_EQ(UntaggedEncoding(Type(wide, exam, '\0').bytes, codePage), FieldEncoding::Utf16InBytes) << i;
    EXPECT_EQ(UntaggedEncoding(Type(narrow, EightBit(exam), '\0').bytes, codePage), FieldEncoding::EightBit)
        << i;
  }
}

TEST(UntaggedEncoding, StaysUtf16WhereTextsFitBothOrNothingTells) {
  const Form wide{"", "", Units::WideInBytes, 0, false, u""};
  const IconvCodePage codePage("GBK");
  for (const char16_t* title : {u"", u"A", u"数学", u"历史", u"扡"}) {
    const TypedExam exam{.title = title, .score = u"1", .shortNumbers = true};
    EXPECT_EQ(UntaggedEncoding(Type(wide, exam, '\0').bytes, codePage), FieldEncoding::Utf16InBytes)
        << testing::PrintToString(std::u16string(title));
  }
  EXPECT_EQ(UntaggedEncoding(std::string(40000, '\x07'), codePage), FieldEncoding::Utf16InBytes);
}

}  // namespace
}  // namespace quorvantis::test
