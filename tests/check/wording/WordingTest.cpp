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
  constexpr std::u16string_view kHits[] = {u"All of the above",
                                           u"<b>None</b>&nbsp;of  these.",
                                           u"Same as above",
                                           u"The first two",
                                           u"both of these",
                                           u"Neither",
                                           u"Neither is correct.",
                                           u"The two previous answers",
                                           u"Both are true",
                                           u"Both, above",
                                           u"Keine der genannten Antworten",
                                           u"Die ersten beiden",
                                           u"Beide sind richtig",
                                           u"Wie oben",
                                           u"Die beiden vorherigen Antworten",
                                           u"De eerste twee",
                                           u"Geen van beide",
                                           u"Les deux premières",
                                           u"Aucune des deux",
                                           u"Ni l’un ni l’autre",
                                           u"Les deux réponses précédentes",
                                           u"Todas las anteriores",
                                           u"Las dos primeras",
                                           u"Ambas son correctas",
                                           u"Ninguna de las dos",
                                           u"As duas anteriores",
                                           u"Ambas estão corretas",
                                           u"Le prime due",
                                           u"Entrambe le precedenti",
                                           u"Nessuna delle due",
                                           u"Come sopra",
                                           u"Оба ответа верны",
                                           u"Первые два",
                                           u"Ни то, ни другое",
                                           u"Два предыдущих ответа",
                                           u"Pierwsze dwie",
                                           u"Żadna z nich",
                                           u"Obie odpowiedzi są poprawne",
                                           u"كلاهما صحيح",
                                           u"جميع ما سبق صحيح",
                                           u"الإجابتان السابقتان",
                                           u"مثل ما سبق",
                                           u"以上都不对",
                                           u"前两项",
                                           u"同上",
                                           u"两者都不是",
                                           u"前两个",
                                           u"どちらも正しくない",
                                           u"最初の二つ",
                                           u"上と同じ",
                                           u"둘 다 맞다",
                                           u"위와 같음",
                                           u"앞의 두 개",
                                           u"İlk ikisi",
                                           u"Her ikisi de doğru",
                                           u"Önceki iki cevap"};
  constexpr std::u16string_view kMisses[] = {u"Tall of the abovementioned",
                                             u"All of the people",
                                             u"above 100 °C",
                                             u"",
                                             u"the above-ground plant",
                                             u"The first two weeks",
                                             u"Both parents work",
                                             u"neither of the parents",
                                             u"Les deux Corées",
                                             u"Die ersten beiden Wochen",
                                             u"Ambas orillas",
                                             u"оба берега",
                                             u"前两个月",
                                             u"둘 다섯",
                                             u"both hands",
                                             u"Le prime due note",
                                             u"أول اثنين في السباق"};
  for (const auto text : kHits) EXPECT_TRUE(SpeaksOfTheOthers(text)) << Utf16ToUtf8(std::u16string(text));
  for (const auto text : kMisses) EXPECT_FALSE(SpeaksOfTheOthers(text)) << Utf16ToUtf8(std::u16string(text));
}

TEST(WordingTest, OptionsThatNameOthers) {
  constexpr std::u16string_view kHits[] = {u"Both A and B",
                                           u"only (a) and (c)",
                                           u"A, B & D",
                                           u"A和B",
                                           u"只有A",
                                           u"A、C都对",
                                           u"أ و ب",
                                           u"أ وب",
                                           u"Only C",
                                           u"А и Б",
                                           u"Neither answer B nor D",
                                           u"Sowohl A als auch C",
                                           u"Die Antworten A und C",
                                           u"Ni A ni B",
                                           u"Solo la A y la B",
                                           u"Le risposte A e C",
                                           u"Tylko A i C",
                                           u"Ve A ve C",
                                           u"Zowel A als B",
                                           u"AとB",
                                           u"A와 B",
                                           u"选项A和C",
                                           u"Richtig: A und B"};
  constexpr std::u16string_view kMisses[] = {u"A",
                                             u"blood group A",
                                             u"a cat and a dog",
                                             u"a + b",
                                             u"AB = CD",
                                             u"Plan B",
                                             u"vitamin C only helps",
                                             u"vitamin A and D",
                                             u"Hepatitis A, B and C",
                                             u"维生素A和D",
                                             u"la vitamina A y D",
                                             u"1 and 3 only",
                                             u"①②"};
  for (const auto text : kHits) EXPECT_TRUE(NamesOptions(text)) << Utf16ToUtf8(std::u16string(text));
  for (const auto text : kMisses) EXPECT_FALSE(NamesOptions(text)) << Utf16ToUtf8(std::u16string(text));
  ExpectEach(NamesOptionsInText, {{u"Why is answer B wrong?", true},
                                  {u"比较选项A和其他", true},
                                  {u"Points A and B lie on a line.", false},
                                  {u"An answer a child would give", false}});
}

TEST(WordingTest, OptionsThatNameOthersByNumbers) {
  constexpr std::u16string_view kHits[] = {
      u"1 and 3 only", u"(i) and (ii)", u"I and II", u"only (2)",    u"III only", u"3 only", u"①②",
      u"①和③都对",     u"甲和乙",       u"只有甲",   u"nur 1 und 2", u"Ⅰ, Ⅱ",     u"ㄱ, ㄴ", u"только 1 и 3"};
  constexpr std::u16string_view kMisses[] = {
      u"1 and 3", u"only 3",        u"2",     u"I and you", u"World War I and II",
      u"(1, 2)",  u"f(1) and f(2)", u"①",     u"1 + 3",     u"甲板和乙烯",
      u"I and V", u"1, 2, 3",       u"only I"};
  const std::u16string_view lists = u"Which? 1 x 2 y 3 z i ii iii ① ② ③ 甲 乙 ⅰ ⅱ ㄱ ㄴ";
  for (const auto text : kHits) {
    EXPECT_TRUE(NamesOptions(text, u"Which are right?")) << Utf16ToUtf8(std::u16string(text));
    EXPECT_FALSE(NamesOptions(text, lists)) << Utf16ToUtf8(std::u16string(text));
  }
  for (const auto text : kMisses)
    EXPECT_FALSE(NamesOptions(text, u"Which are right?")) << Utf16ToUtf8(std::u16string(text));
}

TEST(WordingTest, NamedQuestions) {
  const struct {
    std::u16string_view text;
    std::vector<int> numbers;
  } rows[] = {{u"As in question 3, …", {3}},
              {u"Use questions 3-5 and 9", {3, 4, 5, 9}},
              {u"根据第12题的结果", {12}},
              {u"انظر السؤال ٣", {3}},
              {u"Siehe Frage 7 und 8.", {7, 8}},
              {u"3. soruda bulduğunuz", {3}},
              {u"question 501 or 0", {}},
              {u"The question of 1848", {}},
              {u"3 questions in 10 minutes", {}},
              {u"第三题", {3}},
              {u"In questions 2, 4 and 2", {2, 4}},
              {u"Use your answer to Q2.", {2}},
              {u"As in Q. 2 and Q. 4", {2, 4}},
              {u"Look again (Q12)", {12}},
              {u"See no. 2.", {2}},
              {u"as in question no. 2", {2}},
              {u"your result of question two", {2}},
              {u"Compare question (2) with it", {2}},
              {u"as in questions two and three", {2, 3}},
              {u"wie in Frage zwei", {2}},
              {u"siehe Nr. 4", {4}},
              {u"Frage Nr. 4 lesen", {4}},
              {u"voir n° 3", {3}},
              {u"la question deux", {2}},
              {u"véase n.º 5", {5}},
              {u"la pregunta dos", {2}},
              {u"na questão três", {3}},
              {u"vedi n. 6", {6}},
              {u"nella domanda due", {2}},
              {u"см. № 2", {2}},
              {u"в вопросе номер два", {2}},
              {u"в вопросе № 7", {7}},
              {u"w pytaniu nr 2", {2}},
              {u"w zad. 3", {3}},
              {u"zie vraag twee", {2}},
              {u"في السؤال الثاني", {2}},
              {u"السؤال رقم 4", {4}},
              {u"第（2）题", {2}},
              {u"第2、3题和第5-7题", {2, 3, 5, 6, 7}},
              {u"第十二小题", {12}},
              {u"問2の答え", {2}},
              {u"2번 문제의 답", {2}},
              {u"문제 3에서", {}},
              {u"ikinci soruda", {2}},
              {u"a no. 2 pencil", {}},
              {u"He lives in no. 10 Downing Street", {}},
              {u"Symphony no. 5", {}},
              {u"in Q3 2024 sales rose", {}},
              {u"the value of Q1", {}},
              {u"Answer the question. 3 points", {}},
              {u"the question one must ask", {}},
              {u"Question two witnesses.", {}},
              {u"Stel de vraag een keer", {}},
              {u"İki soruya cevap ver", {}},
              {u"3번 반복한다", {}},
              {u"第三世界", {}},
              {u"No, 2 is even", {}}};
  for (const auto& row : rows)
    EXPECT_EQ(NamedQuestions(row.text), row.numbers) << Utf16ToUtf8(std::u16string(row.text));
}

TEST(WordingTest, WhatQuestionsReferTo) {
  ExpectEach(FollowsOn, {{u"What does the picture above show?", true},
                         {u"Take your result of the previous question.", true},
                         {u"由上题可知", true},
                         {u"اعتمد على النص أعلاه", true},
                         {u"Same as above, but with salt.", true},
                         {u"Nehmen Sie das Ergebnis der vorigen Frage.", true},
                         {u"위 그림에서 무엇을 보는가", true},
                         {u"同上，但加盐", true},
                         {u"Which are above 100?", false},
                         {u"the above-ground plant", false},
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
