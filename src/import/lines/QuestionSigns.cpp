// SPDX-License-Identifier: MIT
#include "import/lines/QuestionSigns.h"

#include "import/labels/LineText.h"
#include "import/lines/BlankSearch.h"
#include "import/lines/LineWords.h"
#include "import/lines/ScoreText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// In small letters. Words that instructions begin with, too, as "read" and "answer", are left out.
constexpr std::u16string_view kTasks[] = {
    u"explain",   u"describe",  u"name",        u"list",        u"calculate", u"define",    u"discuss",
    u"compare",   u"state",     u"solve",       u"outline",     u"prove",     u"summarise", u"summarize",
    u"erkläre",   u"erklären",  u"beschreibe",  u"beschreiben", u"nenne",     u"nennen",    u"berechne",
    u"berechnen", u"begründe",  u"begründen",   u"vergleiche",  u"explique",  u"expliquez", u"décris",
    u"décrivez",  u"cite",      u"citez",       u"calcule",     u"calculez",  u"explica",   u"calcula",
    u"enumera",   u"compara",   u"descreva",    u"defina",      u"spiega",    u"descrivi",  u"elenca",
    u"calcola",   u"wyjaśnij",  u"opisz",       u"wymień",      u"oblicz",    u"leg",       u"beschrijf",
    u"noem",      u"bereken",   u"förklara",    u"beskriv",     u"nämn",      u"объясните", u"опишите",
    u"назовите",  u"вычислите", u"перечислите", u"поясніть",    u"опишіть",   u"назвіть",   u"açıklayınız",
    u"açıkla",    u"hesapla",   u"اشرح",        u"اذكر",        u"عرف",       u"احسب",      u"jelaskan",
    u"sebutkan",  u"hitunglah",
};

/// Scripts without blanks between words.
constexpr std::u16string_view kTaskBeginnings[] = {u"解释", u"说明", u"简述", u"计算", u"试述",
                                                   u"论述", u"列举", u"分析", u"証明", u"説明"};

/// Without points, quotation marks and brackets at its end.
std::u16string_view WithoutEnding(std::u16string_view line) {
  constexpr std::u16string_view kEndings = u"\"'”’»)）]";
  constexpr std::u16string_view kOpens = u"([（【";
  line = Trimmed(line, {0, line.size()}).Of(line);
  const std::size_t open = line.find_last_of(kOpens);
  if (open != line.npos && open > 0 && IsScoreText(line.substr(open))) line = line.substr(0, open);
  const TextSpan kept = Trimmed(line, {0, line.size()});
  line = kept.Of(line);
  while (!line.empty() && kEndings.find(line.back()) != kEndings.npos) line.remove_suffix(1);
  return line;
}

bool EndsInOneOf(std::u16string_view text, std::u16string_view units) {
  return !text.empty() && units.find(text.back()) != units.npos;
}

bool EndsInPoints(std::u16string_view line) {
  line = Trimmed(line, {0, line.size()}).Of(line);
  const std::size_t open = line.find_last_of(u"([（【");
  return EndsInOneOf(line, u")]）】") && open != line.npos && open > 0 && IsScoreText(line.substr(open));
}

bool BeginsWithTask(std::u16string_view line) {
  const std::u16string_view beginning = line.substr(0, 30);
  const auto begins = [beginning](std::u16string_view word) { return beginning.starts_with(word); };
  if (std::ranges::any_of(kTaskBeginnings, begins)) return true;
  const LineWords words(beginning);
  return !words.Words().empty() && std::ranges::find(kTasks, words.Words().front()) != std::end(kTasks);
}

}  // namespace

bool EndsInQuestionMark(std::u16string_view line) {
  return EndsInOneOf(WithoutEnding(line), u"?？؟\u037E");
}

bool EndsAsStem(std::u16string_view line) {
  const TextSpan kept = Trimmed(line, {0, line.size()});
  const std::u16string_view content = kept.Of(line);
  if (EndsInQuestionMark(content) || EndsInOneOf(content, u":：…_＿")) return true;
  if (content.ends_with(u"...") || content.ends_with(u"___.")) return true;
  constexpr std::u16string_view kStops = u".。？?";
  std::u16string_view before = content;
  while (EndsInOneOf(before, kStops)) before.remove_suffix(1);
  if (!EndsInOneOf(before, u")）")) return false;
  before.remove_suffix(1);
  while (!before.empty() && IsBlank(before.back())) before.remove_suffix(1);
  return EndsInOneOf(before, u"(（");
}

bool AsksSomething(const PaperText& text, TextSpan lines) {
  const std::u16string_view characters = text.characters;
  const std::u16string_view all = Trimmed(characters, lines).Of(characters);
  if (BeginsWithTask(all) || all.find(u"___") != all.npos || EndsInPoints(all)) return true;
  const auto asks = [characters](const TextSpan& line) { return EndsInQuestionMark(line.Of(characters)); };
  return std::ranges::any_of(LinesOf(characters, lines), asks) || !BlanksIn(text, lines).empty();
}

}  // namespace quorvantis
