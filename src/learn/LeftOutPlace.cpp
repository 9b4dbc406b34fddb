// SPDX-License-Identifier: MIT
#include "learn/LeftOutPlace.h"

#include "import/labels/LineText.h"

#include <algorithm>
#include <string>

namespace quorvantis {
namespace {

/// Warnings tell a text in one line, and end a long one with dots.
std::u16string AsWarningsTell(std::u16string_view text) {
  std::u16string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char16_t unit) { return unit < u' ' || IsLineEnd(unit); }, u' ');
  return line;
}

}  // namespace

std::optional<TextSpan> LeftOutPlace(const Paper& paper, const RoleLookup& roles,
                                     std::u16string_view beginning) {
  if (beginning.ends_with(u'\u2026')) beginning.remove_suffix(1);
  if (beginning.empty()) return std::nullopt;
  const std::u16string_view source = paper.source.characters;
  const std::u16string text = AsWarningsTell(source);
  std::size_t first = text.find(beginning);
  if (first == text.npos) return std::nullopt;
  for (std::size_t at = first; at != text.npos; at = text.find(beginning, at + 1)) {
    const PaperRole role = roles.RoleAt(at);
    if (role != PaperRole::None && role != PaperRole::NotExam) continue;
    first = at;
    break;
  }
  return TextSpan{first, LineEndAfter(source, first)};
}

}  // namespace quorvantis
