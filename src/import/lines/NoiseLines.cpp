// SPDX-License-Identifier: MIT
#include "import/lines/NoiseLines.h"

#include "import/labels/LineText.h"
#include "import/lines/LineWords.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestLine = 120;

constexpr std::u16string_view kPageWords[] = {
    u"page",   u"seite",   u"pagina", u"página",  u"pág",    u"страница", u"стр",    u"сторінка", u"стор",
    u"strona", u"str",     u"strana", u"stránka", u"sida",   u"side",     u"sivu",   u"oldal",    u"sayfa",
    u"trang",  u"halaman", u"σελίδα", u"صفحة",    u"الصفحة", u"صفحه",     u"עמוד",   u"पृष्ठ",      u"หน้า",
    u"页",     u"頁",      u"ページ", u"쪽",      u"페이지", u"pagină",   u"страна", u"стр",      u"lk",
};

/// What may stand between the numbers of pages.
constexpr std::u16string_view kPageJoints[] = {
    u"of", u"von", u"de",   u"di",   u"sur",  u"из",  u"з",  u"van", u"av",
    u"af", u"z",   u"ze",   u"din",  u"dari", u"από", u"من", u"از",  u"מתוך",
    u"第", u"共",  u"页共", u"頁共", u"页第", u"全",  u"총", u"중",  u"the",
};

constexpr std::u16string_view kTags[] = {u"questionid", u"question id", u"qid",      u"item id", u"itemid",
                                         u"id",         u"题目id",      u"试题id",   u"题id",    u"題目id",
                                         u"frage id",   u"frageid",     u"вопрос id"};

constexpr std::u16string_view kTagsWithValue[] = {u"difficulty", u"schwierigkeit", u"dificultad",
                                                  u"difficulté", u"difficoltà",    u"dificuldade",
                                                  u"сложность",  u"难度",          u"難易度"};

constexpr std::u16string_view kSources[] = {
    u"source", u"sources", u"quelle", u"quellen", u"fuente",   u"fonte",    u"источник", u"джерело",
    u"źródło", u"bron",    u"kilde",  u"källa",   u"kaynak",   u"zdroj",    u"forrás",   u"sursă",
    u"sursa",  u"πηγή",    u"sumber", u"nguồn",   u"lähde",    u"المصدر",   u"مصدر",     u"מקור",
    u"स्रोत",   u"ที่มา",     u"来源",   u"出处",    u"資料來源", u"資料来源", u"出典",     u"출처",
};

template <std::size_t kCount>
bool IsAmong(const std::u16string_view (&words)[kCount], std::u16string_view word) {
  return std::ranges::find(words, word) != std::end(words);
}

bool IsMarksOnly(std::u16string_view text, std::u16string_view marks) {
  return text.find_first_not_of(marks) == text.npos;
}

}  // namespace

bool IsPageLine(std::u16string_view line) {
  constexpr std::size_t kMostNumbers = 2;
  if (line.size() > kLongestLine / 2) return false;
  const LineWords words(line);
  const auto isKnown = [](const std::u16string& word) {
    return IsAmong(kPageWords, word) || IsAmong(kPageJoints, word);
  };
  return words.Numbers() >= 1 && words.Numbers() <= kMostNumbers && NamesPage(line) &&
         std::ranges::all_of(words.Words(), isKnown) && IsMarksOnly(words.Rest(), u" -–—/|.,:：·()（）[]~，");
}

bool NamesPage(std::u16string_view line) {
  if (line.size() > kLongestLine) return false;
  const LineWords words(line);
  const auto isPage = [](const std::u16string& word) {
    return IsAmong(kPageWords, word) || word == u"页共" || word == u"頁共" || word == u"页第";
  };
  return std::ranges::any_of(words.Words(), isPage);
}

bool IsTagLine(std::u16string_view line) {
  constexpr std::size_t kMostWords = 3;
  if (line.size() > kLongestLine / 2) return false;
  const LineWords words(line);
  const auto& found = words.Words();
  if (found.empty() || found.size() > kMostWords) return false;
  if (!IsMarksOnly(words.Rest(), u" :：#.-_()（）[]【】★☆/")) return false;
  const bool hasColon = words.Rest().find_first_of(u":：】") != std::u16string::npos;
  if (IsAmong(kTagsWithValue, found[0])) return hasColon;
  if (IsAmong(kTags, found[0])) return words.Numbers() > 0 && found.size() < kMostWords;
  return found.size() >= 2 && words.Numbers() > 0 && IsAmong(kTags, found[0] + u" " + found[1]);
}

bool IsSourceLine(std::u16string_view line) {
  constexpr std::u16string_view kOpens = u"(（[【*<";
  constexpr std::u16string_view kColons = u":：】]";
  constexpr std::size_t kLongestWord = 12;
  TextSpan content = Trimmed(line, {0, line.size()});
  while (!content.IsEmpty() && kOpens.find(line[content.begin]) != kOpens.npos) ++content.begin;
  const std::u16string_view rest = content.Of(line);
  const std::size_t colon = rest.substr(0, kLongestWord).find_first_of(kColons);
  if (colon == rest.npos) return false;
  const LineWords words(rest.substr(0, colon));
  return words.Words().size() == 1 && words.Numbers() == 0 && IsAmong(kSources, words.Words()[0]);
}

bool IsSeparatorLine(std::u16string_view line) {
  constexpr std::u16string_view kUnits = u"-=*~+•·–—─━═－＝＊～";
  constexpr std::ptrdiff_t kFewest = 3;
  const std::u16string_view content = Trimmed(line, {0, line.size()}).Of(line);
  const auto isUnit = [kUnits](char16_t unit) { return kUnits.find(unit) != kUnits.npos; };
  const auto count = std::ranges::count_if(content, isUnit);
  return count >= kFewest &&
         std::ranges::all_of(content, [&](char16_t unit) { return isUnit(unit) || IsBlank(unit); });
}

}  // namespace quorvantis
