// SPDX-License-Identifier: MIT
#include "check/wording/OptionWording.h"
#include "check/wording/QuestionWording.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <string>

namespace quorvantis {
namespace {

using Speaks = bool (*)(std::u16string_view);

struct Wording {
  std::u16string_view text;
  bool expected;
};

void ExpectEach(Speaks speaks, std::initializer_list<Wording> rows) {
  for (const Wording& row : rows)
    EXPECT_EQ(speaks(row.text), row.expected) << Utf16ToUtf8(std::u16string(row.text));
}

TEST(WordingTest, OptionsThatSpeakOfTheOthers) {
  ExpectEach(SpeaksOfTheOthers, {{u"All of the above", true},
                                 {u"<b>None</b>&nbsp;of  these.", true},
                                 {u"以上都不对", true},
                                 {u"جميع ما سبق صحيح", true},
                                 {u"Keine der genannten Antworten", true},
                                 {u"Todas las anteriores", true},
                                 {u"Tall of the abovementioned", false},
                                 {u"All of the people", false},
                                 {u"above 100 °C", false},
                                 {u"", false}});
}

TEST(WordingTest, OptionsThatNameOthers) {
  ExpectEach(NamesOptions, {{u"Both A and B", true},
                            {u"only (a) and (c)", true},
                            {u"A, B & D", true},
                            {u"A和B", true},
                            {u"只有A", true},
                            {u"A、C都对", true},
                            {u"أ و ب", true},
                            {u"أ وب", true},
                            {u"Only C", true},
                            {u"А и Б", true},
                            {u"Neither answer B nor D", true},
                            {u"A", false},
                            {u"blood group A", false},
                            {u"a cat and a dog", false},
                            {u"a + b", false},
                            {u"AB = CD", false},
                            {u"Plan B", false},
                            {u"vitamin C only helps", false}});
  ExpectEach(NamesOptionsInText, {{u"Why is answer B wrong?", true},
                                  {u"比较选项A和其他", true},
                                  {u"Points A and B lie on a line.", false},
                                  {u"An answer a child would give", false}});
}

TEST(WordingTest, NamedQuestions) {
  const struct {
    std::u16string_view text;
    std::vector<int> numbers;
  } rows[] = {{u"As in question 3, …", {3}},       {u"Use questions 3-5 and 9", {3, 4, 5, 9}},
              {u"根据第12题的结果", {12}},         {u"انظر السؤال ٣", {3}},
              {u"Siehe Frage 7 und 8.", {7, 8}},   {u"3. soruda bulduğunuz", {3}},
              {u"question 501 or 0", {}},          {u"The question of 1848", {}},
              {u"3 questions in 10 minutes", {}},  {u"第三题", {3}},
              {u"In questions 2, 4 and 2", {2, 4}}};
  for (const auto& row : rows)
    EXPECT_EQ(NamedQuestions(row.text), row.numbers) << Utf16ToUtf8(std::u16string(row.text));
}

TEST(WordingTest, WhatQuestionsReferTo) {
  ExpectEach(FollowsOn, {{u"What does the picture above show?", true},
                         {u"Take your result of the previous question.", true},
                         {u"由上题可知", true},
                         {u"اعتمد على النص أعلاه", true},
                         {u"Which are above 100?", false},
                         {u"all of the above", false}});
  ExpectEach(MentionsPicture, {{u"Look at the diagram.", true},
                               {u"What does Figure 3 show?", true},
                               {u"如图所示", true},
                               {u"انظر الشكل التالي", true},
                               {u"Was zeigt die Abbildung links?", true},
                               {u"Who painted pictures?", false},
                               {u"Explain the image problem of sharks", false}});
}

TEST(WordingTest, NegationsHaveAPlace) {
  const struct {
    std::u16string_view text;
    std::u16string_view word;
  } rows[] = {{u"Which is <u>NOT</u> a metal?", u"NOT"},
              {u"下列不正确的是", u"不正确"},
              {u"Alle außer einem", u"außer"},
              {u"A note on knots", u""}};
  for (const auto& row : rows) {
    const std::vector<TextSpan> places = WordingOf(row.text).negations;
    EXPECT_EQ(places.empty() ? u"" : places.front().Of(row.text), row.word);
  }
}

}  // namespace
}  // namespace quorvantis
