// SPDX-License-Identifier: MIT
#include "import/keys/KeyVersions.h"

#include "import/labels/LineText.h"
#include "import/labels/Numerals.h"
#include "import/labels/OptionAlphabets.h"
#include "import/lines/FoldedText.h"

#include <algorithm>
#include <optional>
#include <set>

namespace quorvantis {
namespace {

/// Folded; the name follows: "version B". Where a word begins another one, the longer one is first.
constexpr std::u16string_view kVersionWords[] = {
    u"version",  u"versión", u"versione", u"versão",  u"wersja",  u"verze",  u"verzia",   u"verzija",
    u"variante", u"variant", u"varianta", u"вариант", u"варіант", u"версия", u"версія",   u"нұсқа",
    u"gruppe",   u"grupa",   u"skupina",  u"set",     u"series",  u"serie",  u"série",    u"fila",
    u"változat", u"form",    u"booklet",  u"paket",   u"mã đề",   u"đề số",  u"kitapçık", u"fassung",
    u"εκδοση",   u"έκδοση",  u"النموذج",  u"نموذج",   u"نسخه",    u"النسخه", u"גרסה",     u"נוסח",
    u"试卷",     u"試卷",    u"卷",       u"版本"};

/// The name precedes: "B卷".
constexpr std::u16string_view kVersionWordsBehind[] = {u"卷", u"版", u" 유형", u" kitapçığı"};

/// Chinese papers count their versions so, too.
constexpr std::u16string_view kStems = u"甲乙丙丁";

bool IsNameUnit(char16_t unit) {
  return !AlphabetLettersOf(unit).empty() || kStems.find(unit) != kStems.npos ||
         (unit >= u'0' && unit <= u'9');
}

/// The size of the name at a place: one letter, or up to four digits; 0 for none.
std::size_t NameSize(std::u16string_view text, std::size_t at, std::size_t end) {
  constexpr std::size_t kMostDigits = 4;
  if (at >= end || !IsNameUnit(text[at])) return 0;
  std::size_t size = 1;
  const auto isDigit = [&text](std::size_t place) { return text[place] >= u'0' && text[place] <= u'9'; };
  while (isDigit(at) && at + size < end && isDigit(at + size)) ++size;
  const bool goesOn = at + size < end && AreInOneWord(text[at + size - 1], text[at + size]);
  return goesOn || size > kMostDigits ? 0 : size;
}

std::optional<VersionMark> MarkAt(std::u16string_view text, std::size_t at, std::size_t end) {
  constexpr std::size_t kLongestWord = 12;
  const std::u16string folded = Folded(text.substr(at, std::min(end - at, kLongestWord)));
  for (const std::u16string_view word : kVersionWords) {
    if (!folded.starts_with(word)) continue;
    std::size_t name = SkipBlanks(text, at + word.size(), end);
    while (name < end && std::u16string_view(u"\"“«'№#-:：").find(text[name]) != std::u16string_view::npos)
      name = SkipBlanks(text, name + 1, end);
    const bool isSetOff = name > at + word.size() || word.back() >= 0x3041;
    const std::size_t size = isSetOff ? NameSize(text, name, end) : 0;
    if (size > 0) return VersionMark{{at, name + size}, Folded(text.substr(name, size))};
  }
  // A name in front of an ideograph ends there.
  if (!IsNameUnit(text[at])) return std::nullopt;
  for (const std::u16string_view word : kVersionWordsBehind) {
    if (std::u16string_view(folded).substr(1).starts_with(word))
      return VersionMark{{at, at + 1 + word.size()}, folded.substr(0, 1)};
  }
  return std::nullopt;
}

std::set<std::u16string> NamesOf(const std::vector<VersionMark>& marks) {
  std::set<std::u16string> names;
  for (const VersionMark& mark : marks) names.insert(mark.name);
  return names;
}

/// The names that begin lines: titles rather than words within a text.
std::set<std::u16string> TitlesIn(std::u16string_view text, TextSpan within) {
  std::set<std::u16string> names;
  for (const TextSpan& line : LinesOf(text, within)) {
    const TextSpan trimmed = Trimmed(text, line);
    if (trimmed.IsEmpty()) continue;
    if (const auto mark = MarkAt(text, trimmed.begin, trimmed.end)) names.insert(mark->name);
  }
  return names;
}

/// Behind a mark and what sets it off.
std::size_t BehindTitle(std::u16string_view text, const VersionMark& mark, std::size_t end) {
  constexpr std::u16string_view kBehindTitle = u":：)）]】.-–—|";
  std::size_t at = mark.place.end;
  while (at < end && (IsBlank(text[at]) || kBehindTitle.find(text[at]) != kBehindTitle.npos)) ++at;
  return at;
}

/// Whether a mark is followed as the title of a key is: by the end of its line, a number, or the next mark.
bool IsTitleOfKey(std::u16string_view text, const VersionMark& mark, TextSpan key) {
  const std::size_t at = BehindTitle(text, mark, key.end);
  if (at >= key.end || IsLineEnd(text[at]) || MarkAt(text, at, key.end)) return true;
  const auto isNumber = [](const Numeral& numeral) {
    return numeral.kind != NumeralKind::UpperRoman && numeral.kind != NumeralKind::LowerRoman;
  };
  return std::ranges::any_of(NumeralsAt(text, at), isNumber);
}

/// The first version with that name, up to the next one with another.
TextSpan PartNamed(std::u16string_view text, const std::vector<VersionMark>& marks,
                   const std::u16string& name, TextSpan key) {
  const auto first = std::ranges::find(marks, name, &VersionMark::name);
  const auto next =
      std::find_if(first, marks.end(), [&name](const VersionMark& mark) { return mark.name != name; });
  const std::size_t end = next == marks.end() ? key.end : next->place.begin;
  return {BehindTitle(text, *first, end), end};
}

}  // namespace

std::vector<VersionMark> VersionMarksIn(std::u16string_view text, TextSpan within) {
  std::vector<VersionMark> marks;
  for (std::size_t at = within.begin; at < within.end; ++at) {
    const bool isInWord = at > 0 && AreInOneWord(text[at - 1], text[at]) && text[at] < 0x3041;
    if (isInWord || !IsLetterOrDigit(text[at])) continue;
    // "第Ⅰ卷" is a part.
    if (at > 0 && text[at - 1] == u'第') continue;
    if (auto mark = MarkAt(text, at, within.end)) {
      at = mark->place.end - 1;
      marks.push_back(std::move(*mark));
    }
  }
  return marks;
}

bool HasVersionMark(std::u16string_view line) {
  constexpr std::size_t kLongestTitle = 60;
  const TextSpan trimmed = Trimmed(line, {0, std::min(line.size(), kLongestTitle)});
  return !trimmed.IsEmpty() && MarkAt(line, trimmed.begin, trimmed.end).has_value();
}

VersionChoice ChooseVersion(std::u16string_view text, TextSpan front, TextSpan body, TextSpan key) {
  std::vector<VersionMark> marks = VersionMarksIn(text, key);
  std::erase_if(marks, [&](const VersionMark& mark) { return !IsTitleOfKey(text, mark, key); });
  const std::set<std::u16string> names = NamesOf(marks);
  if (names.empty()) return {key};
  const std::set<std::u16string> titles = TitlesIn(text, body);
  const bool areParts = names.size() > 1 && std::ranges::includes(titles, names);
  if (areParts) return {key};
  const std::set<std::u16string> own = NamesOf(VersionMarksIn(text, front));
  if (own.size() == 1 && names.contains(*own.begin())) return {PartNamed(text, marks, *own.begin(), key)};
  return {key, names.size() > 1 || !own.empty()};
}

}  // namespace quorvantis
