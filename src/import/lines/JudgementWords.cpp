// SPDX-License-Identifier: MIT
#include "import/lines/JudgementWords.h"

#include "import/lines/FoldedText.h"

namespace quorvantis {
namespace {

constexpr JudgementPair kJudgementPairs[] = {
    {u"T", u"F"},
    {u"True", u"False"},
    {u"√", u"×"},
    {u"✓", u"✗"},
    {u"✔", u"✘"},
    {u"✓", u"×"},
    {u"✔", u"✖"},
    {u"✅", u"❌"},
    {u"√", u"X"},
    {u"对", u"错"},
    {u"對", u"錯"},
    {u"正确", u"错误"},
    {u"正確", u"錯誤"},
    {u"是", u"否"},
    {u"○", u"×"},
    {u"〇", u"×"},
    {u"O", u"X"},
    {u"正しい", u"正しくない"},
    {u"正しい", u"間違い"},
    {u"맞음", u"틀림"},
    {u"참", u"거짓"},
    {u"Yes", u"No"},
    {u"Right", u"Wrong"},
    {u"Correct", u"Incorrect"},
    {u"Richtig", u"Falsch"},
    {u"Wahr", u"Falsch"},
    {u"Ja", u"Nein"},
    {u"R", u"F"},
    {u"Vrai", u"Faux"},
    {u"V", u"F"},
    {u"Verdadero", u"Falso"},
    {u"Verdadeiro", u"Falso"},
    {u"Vero", u"Falso"},
    {u"Sí", u"No"},
    {u"Верно", u"Неверно"},
    {u"Правильно", u"Неправильно"},
    {u"Правда", u"Неправда"},
    {u"Да", u"Нет"},
    {u"Так", u"Ні"},
    {u"Правильно", u"Хибно"},
    {u"Вярно", u"Невярно"},
    {u"Prawda", u"Fałsz"},
    {u"P", u"F"},
    {u"Tak", u"Nie"},
    {u"Pravda", u"Nepravda"},
    {u"Ano", u"Ne"},
    {u"Doğru", u"Yanlış"},
    {u"D", u"Y"},
    {u"Đúng", u"Sai"},
    {u"Đ", u"S"},
    {u"Benar", u"Salah"},
    {u"B", u"S"},
    {u"सही", u"गलत"},
    {u"सत्य", u"असत्य"},
    {u"صح", u"خطأ"},
    {u"صح", u"غلط"},
    {u"صواب", u"خطأ"},
    {u"صحيح", u"خطأ"},
    {u"درست", u"نادرست"},
    {u"נכון", u"לא נכון"},
    {u"נכון", u"שגוי"},
    {u"Σωστό", u"Λάθος"},
    {u"Σ", u"Λ"},
    {u"ถูก", u"ผิด"},
    {u"Waar", u"Onwaar"},
    {u"Juist", u"Onjuist"},
    {u"Sant", u"Falskt"},
    {u"Sandt", u"Falsk"},
    {u"Rätt", u"Fel"},
    {u"Oikein", u"Väärin"},
    {u"Adevărat", u"Fals"},
    {u"Igaz", u"Hamis"},
};

/// Whether the text begins with a word that does not go on.
bool BeginsWithWord(std::u16string_view text, std::u16string_view word) {
  if (text.size() < word.size() || Folded(text.front()) != Folded(word.front())) return false;
  if (Folded(text.substr(0, word.size())) != Folded(word)) return false;
  return text.size() == word.size() || !AreInOneWord(text[word.size() - 1], text[word.size()]);
}

}  // namespace

std::span<const JudgementPair> JudgementPairs() {
  return kJudgementPairs;
}

std::vector<JudgementWord> JudgementWordsAt(std::u16string_view text) {
  std::vector<JudgementWord> words;
  for (std::size_t pair = 0; pair < std::size(kJudgementPairs); ++pair) {
    for (const bool isRight : {true, false}) {
      const std::u16string_view word = isRight ? kJudgementPairs[pair].right : kJudgementPairs[pair].wrong;
      if (!BeginsWithWord(text, word)) continue;
      if (!words.empty() && words.front().size > word.size()) continue;
      if (!words.empty() && words.front().size < word.size()) words.clear();
      words.push_back({pair, isRight, word.size()});
    }
  }
  return words;
}

}  // namespace quorvantis
