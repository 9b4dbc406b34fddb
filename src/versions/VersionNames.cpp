// SPDX-License-Identifier: MIT
#include "versions/VersionNames.h"

#include "model/AnswerLetters.h"
#include "platform/TextNumbers.h"
#include "regex/LetterCase.h"
#include "text/AsciiCase.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/Utf.h"
#include "versions/VersionRequest.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string_view>

namespace quorvantis {
namespace {

bool IsAllowedInNames(char16_t unit) {
  constexpr std::u16string_view kForbidden = u"/\\:*?\"<>|";  // by some system
  const bool isControl = unit < 0x20 || (unit >= 0x7F && unit <= 0x9F);
  // Invisible marks would make two names look alike, or turn the rest of a file name round.
  const bool isMark = (unit >= 0x200B && unit <= 0x200F) || (unit >= 0x2028 && unit <= 0x202E) ||
                      (unit >= 0x2060 && unit <= 0x206F) || unit == 0xFEFF;
  return !isControl && !isMark && kForbidden.find(unit) == kForbidden.npos;
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

std::u16string Folded(std::u16string_view name) {
  std::u16string folded;
  std::ranges::transform(name, std::back_inserter(folded), FoldCase);
  return folded;
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
  std::set<std::u16string> seen;
  for (const std::u16string& name : names) {
    if (!IsUsable(name)) return FillMessage(strings.Text(text_id::kVersionNameUnusable), {name});
    if (!seen.insert(Folded(name)).second)
      return FillMessage(strings.Text(text_id::kVersionNameTwice), {name});
  }
  return {};
}

}  // namespace quorvantis
