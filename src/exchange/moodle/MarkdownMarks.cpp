// SPDX-License-Identifier: MIT
#include "exchange/moodle/MarkdownMarks.h"

#include "exchange/form/TextSource.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Whether a star in front of a word is followed by one behind a word.
bool HasEmphasis(std::u16string_view line) {
  bool isOpen = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] != u'*') continue;
    if (isOpen && line[i - 1] != u' ') return true;
    isOpen = isOpen || (i + 1 < line.size() && line[i + 1] != u' ');
  }
  return false;
}

bool BeginsBlock(std::u16string_view line) {
  line = Trimmed(line);
  const std::size_t mark = line.substr(0, 8).find_first_not_of(u"#");
  if (mark != line.npos && mark > 0 && line[mark] == u' ') return true;
  const std::size_t digits = line.substr(0, 8).find_first_not_of(u"0123456789");
  if (digits != line.npos && digits > 0 && line.substr(digits).starts_with(u". ")) return true;
  return line.size() > 1 && line[1] == u' ' &&
         (line[0] == u'-' || line[0] == u'+' || line[0] == u'*' || line[0] == u'>');
}

}  // namespace

bool HasMarkdownMarks(std::u16string_view text) {
  if (text.find(u'`') != text.npos || text.find(u"](") != text.npos) return true;
  const auto lines = LinesOf(text);
  return std::any_of(lines.begin(), lines.end(),
                     [](std::u16string_view line) { return BeginsBlock(line) || HasEmphasis(line); });
}

}  // namespace quorvantis
