// SPDX-License-Identifier: MIT
#include "import/paper/Paper.h"

#include <algorithm>
#include <string_view>

namespace quorvantis {
namespace {

/// Puts a document together.
class PaperMaking {
 public:
  explicit PaperMaking(const WordContent& document) : document_(document) {}

  Paper Make() {
    std::size_t from = 0;
    for (const WordTable& table : document_.tables) {
      const std::size_t place = std::clamp(table.position, from, document_.runningText.characters.size());
      AddPart(document_.runningText, {from, place});
      from = place;
      AddTable(table);
    }
    AddPart(document_.runningText, {from, document_.runningText.characters.size()});
    paper_.source.origins = OriginsOfOriginal(paper_.source.characters.size());
    return std::move(paper_);
  }

 private:
  void AddPart(const WordText& text, TextSpan span) {
    PaperText& source = paper_.source;
    const std::size_t begin = source.characters.size();
    source.characters += span.Of(text.characters);
    source.emphasis.resize(source.characters.size(), 0);
    auto run = std::ranges::upper_bound(text.emphasis, span.begin, {}, &EmphasisRun::end);
    for (; run != text.emphasis.end() && run->begin < span.end; ++run) {
      const std::size_t last = std::min(run->end, span.end);
      for (std::size_t at = std::max(run->begin, span.begin); at < last; ++at)
        source.emphasis[begin + at - span.begin] = run->kinds;
    }
  }

  void AddTable(const WordTable& table) {
    TableInPaper added;
    added.place.begin = Size();
    for (const auto& row : table.rows) {
      auto& cells = added.rows.emplace_back();
      for (const WordText& cell : row) {
        if (!cells.empty()) Add(u'\t');
        cells.push_back(AddCell(cell));
      }
      Add(u'\r');
    }
    added.place.end = Size();
    paper_.tables.push_back(std::move(added));
  }

  TextSpan AddCell(const WordText& cell) {
    const std::u16string_view text = cell.characters;
    const std::size_t size = text.find_last_not_of(u"\u0007\r\n\t ") + 1;
    const std::size_t begin = Size();
    AddPart(cell, {0, size});
    return {begin, Size()};
  }

  void Add(char16_t unit) {
    paper_.source.characters += unit;
    paper_.source.emphasis.push_back(0);
  }

  std::size_t Size() const { return paper_.source.characters.size(); }

  const WordContent& document_;
  Paper paper_;
};

}  // namespace

Paper PaperOf(const WordContent& document) {
  return PaperMaking(document).Make();
}

Paper PaperOf(std::u16string_view text) {
  WordContent document;
  document.runningText.characters = text;
  return PaperOf(document);
}

PaperText RunningText(const Paper& paper) {
  PaperText text;
  std::size_t from = 0;
  for (const TableInPaper& table : paper.tables) {
    text.Append(paper.source.Part({from, table.place.begin}));
    from = table.place.end;
  }
  text.Append(paper.source.Part({from, paper.source.Size()}));
  return text;
}

}  // namespace quorvantis
