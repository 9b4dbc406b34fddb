// SPDX-License-Identifier: MIT
#include "learn/BeginningAndEnd.h"

#include "import/labels/LineText.h"

namespace quorvantis {
namespace {

constexpr std::size_t kEnd = kMostLearned / 4;

/// Whether a table lies in a part, whole.
bool LiesIn(const TableInPaper& table, std::size_t begin, std::size_t end) {
  return table.place.begin >= begin && table.place.end <= end;
}

TableInPaper MovedBack(TableInPaper table, std::size_t by) {
  const auto move = [by](TextSpan& span) { span = {span.begin - by, span.end - by}; };
  move(table.place);
  for (auto& row : table.rows) {
    for (TextSpan& cell : row) move(cell);
  }
  return table;
}

}  // namespace

BeginningAndEnd::BeginningAndEnd(const Paper& paper, const std::vector<PaperMark>& marks) : paper_(paper) {
  isCut_ = paper.source.Size() > kMostLearned;
  if (isCut_) Cut();
  for (std::size_t i = 0; i < marks.size(); ++i) {
    PaperMark mark = marks[i];
    if (isCut_ && mark.span.end > gap_.begin) {
      if (mark.span.begin < gap_.end) continue;
      mark.span = {mark.span.begin - gap_.Size(), mark.span.end - gap_.Size()};
    }
    marks_.push_back(mark);
    indices_.push_back(i);
  }
}

/// Cuts at the ends of lines.
void BeginningAndEnd::Cut() {
  const std::u16string_view text = paper_.source.characters;
  gap_.begin = LineBeginBefore(text, kMostLearned - kEnd);
  gap_.end = LineEndAfter(text, text.size() - kEnd);
  if (gap_.begin == 0) gap_.begin = kMostLearned - kEnd;
  if (gap_.end == text.size()) gap_.end = text.size() - kEnd;
  short_.source = paper_.source.Part({0, gap_.begin});
  short_.source.Append(paper_.source.Part({gap_.end, text.size()}));
  short_.source.origins = OriginsOfOriginal(short_.source.characters.size());
  for (const TableInPaper& table : paper_.tables) {
    if (LiesIn(table, 0, gap_.begin)) short_.tables.push_back(table);
    if (LiesIn(table, gap_.end, text.size())) short_.tables.push_back(MovedBack(table, gap_.Size()));
  }
}

std::vector<std::size_t> BeginningAndEnd::OriginalIndices(const std::vector<std::size_t>& indices) const {
  std::vector<std::size_t> original;
  original.reserve(indices.size());
  for (const std::size_t index : indices) original.push_back(indices_[index]);
  return original;
}

}  // namespace quorvantis
