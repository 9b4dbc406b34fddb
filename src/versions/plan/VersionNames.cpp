// SPDX-License-Identifier: MIT
#include "versions/plan/VersionNames.h"

#include "model/AnswerLetters.h"
#include "platform/texts/VersionTexts.h"
#include "regex/LetterCase.h"
#include "text/AsciiCase.h"
#include "text/ControlCharacters.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/Utf.h"
#include "versions/plan/VersionRequest.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace quorvantis {
namespace {

bool IsAllowedInNames(char16_t unit) {
  constexpr std::u16string_view kForbidden = u"/\\:*?\"<>|";  // by some system
  // Invisible marks would make two names look alike, or turn the rest of a file name round.
  const bool isMark = (unit >= 0x200B && unit <= 0x200F) || (unit >= 0x2028 && unit <= 0x202E) ||
                      (unit >= 0x2060 && unit <= 0x206F) || unit == 0xFEFF;
  return !IsControl(unit) && !isMark && kForbidden.find(unit) == kForbidden.npos;
}

/// Devices, which no folder of some systems can have as a file, whatever follows behind a dot.
bool IsReserved(std::u16string_view name) {
  constexpr std::u16string_view kDevices[] = {u"CON", u"PRN", u"AUX", u"NUL"};
  const std::u16string device = AsciiUpper(name.substr(0, name.find(u'.')));
  const bool isNumbered = device.size() == 4 && (device.starts_with(u"COM") || device.starts_with(u"LPT")) &&
                          IsDigit(device.back());
  return isNumbered || std::ranges::find(kDevices, device) != std::end(kDevices);
}

bool IsUsable(std::u16string_view name) {
  constexpr std::u16string_view kNotAround = u". ";
  return !name.empty() && name.size() <= kMaxVersionName && std::ranges::all_of(name, IsAllowedInNames) &&
         ReplaceLoneSurrogates(name) == name && kNotAround.find(name.front()) == kNotAround.npos &&
         kNotAround.find(name.back()) == kNotAround.npos && !IsReserved(name);
}

struct Expansion {
  char16_t letter;
  std::u16string_view letters;
};

/// Letters that become several where the case does not count.
constexpr Expansion kExpansions[] = {
    {u'\u00DF', u"ss"},           {u'\u0130', u"i\u0307"}, {u'\u0149', u"\u02BCn"}, {u'\u01F0', u"j\u030C"},
    {u'\u0587', u"\u0565\u0582"}, {u'\uFB00', u"ff"},      {u'\uFB01', u"fi"},      {u'\uFB02', u"fl"},
    {u'\uFB03', u"ffi"},          {u'\uFB04', u"ffl"},     {u'\uFB05', u"st"},      {u'\uFB06', u"st"},
};

/// The same text for names that differ only in the case of letters.
std::u16string Folded(std::u16string_view name) {
  std::u16string folded;
  for (const char16_t unit : name) {
    const char16_t letter = FoldCase(unit);
    const auto* const row = std::ranges::find(kExpansions, letter, &Expansion::letter);
    if (row != std::end(kExpansions))
      folded += row->letters;
    else
      folded += letter;
  }
  return folded;
}

bool IsCombining(char16_t unit) {
  return (unit >= 0x0300 && unit <= 0x036F) || (unit >= 0x1DC0 && unit <= 0x1DFF) ||
         (unit >= 0x20D0 && unit <= 0x20FF);
}

/// A folded name in which one sign stands for every letter that has a mark, or is one unit with it. Some
/// disks write a letter and its mark as one and some as two; this tells more names to be alike than are.
std::u16string WithoutMarks(std::u16string_view folded) {
  constexpr char16_t kMarked = u'\u0300';
  const auto mayBeMarked = [](char16_t unit) {
    return (unit >= 0x00C0 && unit < 0x0250) || (unit >= 0x0370 && unit < 0x0530) ||
           (unit >= 0x1E00 && unit < 0x2000);
  };
  std::u16string shape;
  for (const char16_t unit : folded) {
    if (IsCombining(unit) && !shape.empty())
      shape.back() = kMarked;
    else
      shape += mayBeMarked(unit) ? kMarked : unit;
  }
  return shape;
}

/// Whether files named after folded names may be one file on some disks.
bool AreAlike(const std::u16string& name, const std::u16string& other) {
  const bool hasMarks = std::ranges::any_of(name, IsCombining) || std::ranges::any_of(other, IsCombining);
  return name == other || (hasMarks && WithoutMarks(name) == WithoutMarks(other));
}

}  // namespace

std::vector<std::u16string> LetterNames(std::size_t count) {
  std::vector<std::u16string> names;
  for (std::size_t i = 0; i < std::min(count, kMaxVersions); ++i)
    names.emplace_back(1, static_cast<char16_t>(u'A' + i));
  return names;
}

std::u16string ProblemWithNames(const std::vector<std::u16string>& names, const StringTable& strings) {
  if (names.empty() || names.size() > kMaxVersions)
    return FillMessage(strings.Text(text_id::kVersionCountWrong), {FormatInteger(kMaxVersions)});
  std::vector<std::u16string> folded;
  for (const std::u16string& name : names) {
    if (!IsUsable(name)) return FillMessage(strings.Text(text_id::kVersionNameUnusable), {name});
    folded.push_back(Folded(name));
    for (std::size_t i = 0; i + 1 < folded.size(); ++i) {
      if (names[i] == name) return FillMessage(strings.Text(text_id::kVersionNameTwice), {name});
      if (AreAlike(folded[i], folded.back()))
        return FillMessage(strings.Text(text_id::kVersionNamesAlike), {names[i], name});
    }
  }
  return {};
}

}  // namespace quorvantis
