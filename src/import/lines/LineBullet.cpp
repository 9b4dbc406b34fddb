// SPDX-License-Identifier: MIT
#include "import/lines/LineBullet.h"

#include "import/labels/LineText.h"
#include "import/labels/OptionSigns.h"

namespace quorvantis {
namespace {

constexpr std::u16string_view kBoxOpens = u"([（［";
constexpr std::u16string_view kBoxCloses = u")]）］";
constexpr std::u16string_view kEmptyBoxes = u"○◯□☐◻▢❏❐❑❒⬜";
constexpr std::u16string_view kTickedBoxes = u"☑☒■●◉";

/// "( )", "[x]" or "（√）"; 0 if it is something else.
std::size_t BracketedBoxSize(std::u16string_view text) {
  constexpr std::size_t kWidest = 8;
  if (text.empty() || kBoxOpens.find(text[0]) == kBoxOpens.npos) return 0;
  const std::size_t widest = text.size() < kWidest ? text.size() : kWidest;
  std::size_t at = SkipBlanks(text, 1, widest);
  if (at < widest && IsOptionSign(text[at])) ++at;
  if (at < widest && text[at] == kVariationSelector) ++at;
  at = SkipBlanks(text, at, widest);
  return at < widest && kBoxCloses.find(text[at]) != kBoxCloses.npos ? at + 1 : 0;
}

}  // namespace

std::size_t BoxSize(std::u16string_view text) {
  if (text.empty()) return 0;
  const bool isShape = kEmptyBoxes.find(text[0]) != text.npos || kTickedBoxes.find(text[0]) != text.npos;
  if (!isShape) return BracketedBoxSize(text);
  return text.size() > 1 && text[1] == kVariationSelector ? 2 : 1;
}

std::size_t BulletSize(std::u16string_view line) {
  constexpr std::u16string_view kWithBlank = u"-–—*+o>.√";
  constexpr std::u16string_view kAlways = u"•▪▫◦‣⁃·◆◇➢➤►▶→⇒★☆✓✔✅✗✘";
  if (line.size() < 2) return 0;
  const std::size_t box = BoxSize(line);
  if (box > 0) return box < line.size() ? box : 0;
  const char16_t unit = line[0];
  // Fonts of symbols have their bullets in the private area.
  if (kAlways.find(unit) != kAlways.npos || (unit >= 0xF000 && unit <= 0xF0FF)) return 1;
  return kWithBlank.find(unit) != kWithBlank.npos && IsBlank(line[1]) ? 1 : 0;
}

char16_t SignOfBullet(std::u16string_view bullet) {
  if (kBoxOpens.find(bullet[0]) == kBoxOpens.npos) return bullet[0];
  const std::size_t inner = SkipBlanks(bullet, 1, bullet.size());
  return inner + 1 < bullet.size() ? bullet[inner] : u' ';
}

bool IsEmptyBox(char16_t sign) {
  return sign == u' ' || kEmptyBoxes.find(sign) != kEmptyBoxes.npos;
}

}  // namespace quorvantis
