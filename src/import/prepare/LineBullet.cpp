// SPDX-License-Identifier: MIT
#include "import/prepare/LineBullet.h"

#include "import/labels/LineText.h"

namespace quorvantis {

std::size_t BulletSize(std::u16string_view line) {
  constexpr std::u16string_view kWithBlank = u"-–—*+o>.";
  constexpr std::u16string_view kAlways = u"•▪▫◦‣⁃·●○◯◆◇■□☐☑☒❑❒➢✓✔";
  constexpr std::u16string_view kBox = u"[ ]";
  constexpr std::u16string_view kRoundBox = u"( )";
  if (line.size() < 2) return 0;
  const char16_t unit = line[0];
  // Fonts of symbols have their bullets in the private area.
  if (kAlways.find(unit) != kAlways.npos || (unit >= 0xF000 && unit <= 0xF0FF)) return 1;
  if (kWithBlank.find(unit) != kWithBlank.npos) return IsBlank(line[1]) ? 1 : 0;
  return line.starts_with(kBox) || line.starts_with(kRoundBox) ? kBox.size() : 0;
}

}  // namespace quorvantis
