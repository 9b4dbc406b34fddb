// SPDX-License-Identifier: MIT
// Papers with emphasis and tables, written as plain text: "{b|bold}", "{u|underlined}", "{c|coloured}",
// "{h|highlighted}", "{i|italic}", "{br}" for a line break within a paragraph, and lines of "| cell | cell
// |".
#pragma once

#include "import/labels/LineText.h"
#include "import/paper/Paper.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvantis::test {

/// A piece of the notation without its tables.
inline WordText NotedText(std::u16string_view noted) {
  constexpr std::u16string_view kLetters = u"buchi";
  constexpr std::uint8_t kKinds[] = {emphasis::kBold, emphasis::kUnderlined, emphasis::kColoured,
                                     emphasis::kHighlighted, emphasis::kItalic};
  WordText text;
  std::uint8_t kinds = 0;
  for (std::size_t at = 0; at < noted.size();) {
    const std::size_t letter = at + 2 < noted.size() && noted[at] == u'{' && noted[at + 2] == u'|'
                                   ? kLetters.find(noted[at + 1])
                                   : kLetters.npos;
    if (letter != kLetters.npos) {
      kinds |= kKinds[letter];
      at += 3;
    } else if (noted.substr(at, 4) == u"{br}") {
      text.characters += u'\v';
      at += 4;
    } else if (noted[at] == u'}' && kinds != 0) {
      kinds = 0;
      ++at;
    } else {
      text.characters += noted[at] == u'\n' ? u'\r' : noted[at];
      ++at;
      if (kinds != 0) text.emphasis.push_back({text.characters.size() - 1, text.characters.size(), kinds});
    }
  }
  return text;
}

/// The cells of a line of a table.
inline std::vector<WordText> NotedRow(std::u16string_view line) {
  std::vector<WordText> row;
  line.remove_prefix(1);
  while (!line.empty()) {
    std::size_t bar = line.find(u'|');
    // The bar of an emphasis is none of the table's.
    while (bar != line.npos && bar >= 2 && line[bar - 2] == u'{') bar = line.find(u'|', bar + 1);
    const std::u16string_view cell = line.substr(0, bar);
    if (bar == line.npos && Trimmed(cell, {0, cell.size()}).IsEmpty()) break;
    row.push_back(NotedText(Trimmed(cell, {0, cell.size()}).Of(cell)));
    line.remove_prefix(bar == line.npos ? line.size() : bar + 1);
  }
  return row;
}

/// A whole paper. Its lines end with CR, as those of word processors do.
inline Paper NotedPaper(std::u16string_view noted) {
  WordContent document;
  WordText& running = document.runningText;
  bool isInTable = false;
  for (const TextSpan& span : LinesOf(noted, {0, noted.size()})) {
    const std::u16string_view line = span.Of(noted);
    if (!line.starts_with(u'|')) {
      const WordText text = NotedText(line);
      const std::size_t by = running.characters.size();
      running.characters += text.characters + u"\r";
      for (const EmphasisRun& run : text.emphasis)
        running.emphasis.push_back({run.begin + by, run.end + by, run.kinds});
      isInTable = false;
      continue;
    }
    if (!isInTable) document.tables.push_back({{}, running.characters.size()});
    isInTable = true;
    document.tables.back().rows.push_back(NotedRow(line));
  }
  return PaperOf(document);
}

}  // namespace quorvantis::test
