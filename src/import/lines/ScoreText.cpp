// SPDX-License-Identifier: MIT
#include "import/lines/ScoreText.h"

#include "import/labels/LineText.h"
#include "import/lines/LineWords.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// In small letters.
constexpr std::u16string_view kScoreWords[] = {
    u"point",  u"points",  u"pts",    u"pt",     u"mark",    u"marks",  u"score", u"each",   u"total",
    u"p",      u"m",       u"punkt",  u"punkte", u"punkten", u"je",     u"poäng", u"poeng",  u"punten",
    u"punt",   u"punto",   u"puntos", u"punti",  u"ponto",   u"pontos", u"valor", u"punkty", u"punktów",
    u"pkt",    u"bod",     u"body",   u"bodů",   u"bodova",  u"pont",   u"puan",  u"piste",  u"pistettä",
    u"балл",   u"балла",   u"баллов", u"баллы",  u"бал",     u"бали",   u"балів", u"точка",  u"точки",
    u"βαθμός", u"μονάδες", u"điểm",   u"poin",   u"nilai",   u"skor",   u"درجة",  u"درجات",  u"علامة",
    u"نقاط",   u"نقطة",    u"نمره",   u"نمرات",  u"נקודות",  u"נק",     u"अंक",    u"คะแนน",  u"分",
    u"每题",   u"每小题",  u"共",     u"满分",   u"本题",    u"點",     u"点",    u"점",     u"각",
    u"得分",   u"分数",    u"bal",    u"balla",  u"ballar",  u"bals",   u"note",  u"sur",
};

/// What stands before or over a blank for the teacher.
constexpr std::u16string_view kFieldWords[] = {
    u"score",  u"scores",    u"marks",   u"mark",    u"points", u"point",  u"grade",       u"total",
    u"punkte", u"note",      u"puntos",  u"puntaje", u"nota",   u"pontos", u"valutazione", u"punti",
    u"voto",   u"punktacja", u"оценка",  u"баллы",   u"балл",   u"балів",  u"оцінка",      u"得分",
    u"分数",   u"评卷人",    u"阅卷人",  u"评分",    u"评分人", u"得点",   u"点数",        u"점수",
    u"الدرجة", u"الدرجات",   u"العلامة", u"puan",    u"punten", u"poäng",  u"điểm",        u"คะแนน",
    u"अंक",     u"skor",      u"nilai",   u"نمره",    u"ציון",
};

template <std::size_t kCount>
bool IsOneOf(const std::u16string_view (&words)[kCount], std::u16string_view word) {
  return std::ranges::find(words, word) != std::end(words);
}

bool IsMadeOf(std::u16string_view text, std::u16string_view units) {
  return text.find_first_not_of(units) == text.npos;
}

}  // namespace

bool IsScoreText(std::u16string_view text) {
  constexpr std::size_t kLongest = 40;
  if (text.size() > kLongest) return false;
  const LineWords words(text);
  const auto isScore = [](const std::u16string& word) { return IsOneOf(kScoreWords, word); };
  return words.Numbers() > 0 && IsMadeOf(words.Rest(), u".,/:()[]（）【】=+-–·：，x×*. ") &&
         std::ranges::all_of(words.Words(), isScore);
}

bool IsScoreSum(std::u16string_view line) {
  constexpr std::size_t kLongest = 40;
  constexpr int kMostOptions = 9;
  if (line.size() < 3 || line.size() > kLongest || !IsMadeOf(line.substr(0, 1), u"([（")) return false;
  if (!IsMadeOf(line.substr(line.size() - 1), u")]）") || !IsMadeOf(line, u"0123456789 ()[]（）xX×*+=/"))
    return false;
  const LineWords words(line);
  return words.Numbers() > 1 || (words.Numbers() == 1 && words.Values()[0] > kMostOptions);
}

bool IsScoreField(std::u16string_view line) {
  constexpr std::size_t kLongest = 60;
  if (line.size() > kLongest) return false;
  const LineWords words(line);
  const bool hasBlank = words.Rest().find_first_of(u"_＿…") != std::u16string::npos;
  const bool hasColon = words.Rest().find_first_of(u":：") != std::u16string::npos;
  const bool hasSlash = words.Rest().find(u'/') != std::u16string::npos;
  if (!IsMadeOf(words.Rest(), u"_＿…./:：()[]（）【】|- ")) return false;
  if (words.Words().empty()) return hasBlank && hasSlash && words.Numbers() == 1;
  const auto isField = [](const std::u16string& word) { return IsOneOf(kFieldWords, word); };
  if (!std::ranges::all_of(words.Words(), isField)) return false;
  // "Total 5" may be an option; "Marks:" and the cells of a Chinese table of marks are none.
  return hasBlank || hasColon || hasSlash || (words.Numbers() == 0 && words.Words().size() > 1);
}

}  // namespace quorvantis
