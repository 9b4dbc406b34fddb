// SPDX-License-Identifier: MIT
#include "learn/BeginningAndEnd.h"

#include "import/keys/KeyReader.h"
#include "import/labels/LineText.h"
#include "import/lines/AnswerHeadings.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Papers of 500 questions have fewer.
constexpr std::size_t kMostLines = 8'000;
/// What of a long paper is its end: one part of so many.
constexpr std::size_t kPartsPerEnd = 4;

/// Cuts a text at the ends of lines.
class TextCutting {
 public:
  explicit TextCutting(std::u16string_view text) : text_(text), lines_(LinesOf(text, {0, text.size()})) {}

  bool IsTooLong() const { return text_.size() > kMostLearned || lines_.size() > kMostLines; }

  std::vector<TextSpan> Parts() const {
    const std::size_t heading = LineOfLongKey();
    if (heading < lines_.size()) return {FirstOf(0, heading), FirstOf(heading, lines_.size())};
    std::size_t from =
        LineEndAfter(text_, text_.size() - std::min(text_.size(), kMostLearned / kPartsPerEnd));
    if (from == text_.size()) from -= std::min(from, kMostLearned / kPartsPerEnd);
    if (lines_.size() > kMostLines)
      from = std::max(from, lines_[lines_.size() - kMostLines / kPartsPerEnd].begin);
    return {{0, EndOfBeginning()}, {from, text_.size()}};
  }

 private:
  std::size_t EndOfBeginning() const {
    constexpr std::size_t kMost = kMostLearned - kMostLearned / kPartsPerEnd;
    std::size_t end = text_.size() > kMostLearned ? LineBeginBefore(text_, kMost) : text_.size();
    if (end == 0) end = kMost;
    return lines_.size() > kMostLines ? std::min(end, lines_[kMostLines - kMostLines / kPartsPerEnd].begin)
                                      : end;
  }

  /// The heading of answers that reach further back than an end does; the number of lines if there is none.
  std::size_t LineOfLongKey() const {
    constexpr std::size_t kLongestHeading = 80;
    constexpr std::size_t kFewestLines = 100;
    const std::size_t none = lines_.size();
    for (std::size_t i = lines_.size(); i-- > kFewestLines;) {
      const TextSpan line = Trimmed(text_, lines_[i]);
      if (line.IsEmpty() || line.Size() > kLongestHeading) continue;
      if (AnswerHeadingOf(line.Of(text_)) != AnswerHeading::Clear || !AreAnswersBehind(i)) continue;
      const bool isLong = text_.size() - line.begin > kMostLearned / kPartsPerEnd ||
                          lines_.size() - i > kMostLines / kPartsPerEnd;
      return isLong ? i : none;
    }
    return none;
  }

  bool AreAnswersBehind(std::size_t heading) const {
    std::size_t next = heading + 1;
    while (next < lines_.size() && Trimmed(text_, lines_[next]).IsEmpty()) ++next;
    return next < lines_.size() && HoldsAnswers(text_, lines_[next]);
  }

  /// The share of some lines that the whole text may have.
  TextSpan FirstOf(std::size_t first, std::size_t last) const {
    const auto share = [](std::size_t most, std::size_t all) {
      return std::min(1.0, static_cast<double>(most) / static_cast<double>(all));
    };
    const double kept = std::min(share(kMostLearned, text_.size()), share(kMostLines, lines_.size()));
    const auto count = static_cast<std::size_t>(static_cast<double>(last - first) * kept);
    const std::size_t begin = first == 0 ? 0 : lines_[first].begin;
    const std::size_t end = first + count < lines_.size() ? lines_[first + count].begin : text_.size();
    return {begin, std::min(end, begin + kMostLearned)};
  }

  std::u16string_view text_;
  std::vector<TextSpan> lines_;
};

}  // namespace

BeginningAndEnd::BeginningAndEnd(const Paper& paper, const std::vector<PaperMark>& marks) : paper_(paper) {
  Cut();
  for (std::size_t i = 0; i < marks.size(); ++i) {
    const std::optional<TextSpan> span = IsCut() ? MovedTogether(marks[i].span) : marks[i].span;
    if (!span) continue;
    marks_.push_back({*span, marks[i].role});
    indices_.push_back(i);
  }
}

void BeginningAndEnd::Cut() {
  const TextCutting cutting(paper_.source.characters);
  if (!cutting.IsTooLong()) return;
  kept_ = cutting.Parts();
  for (const TextSpan& part : kept_) short_.source.Append(paper_.source.Part(part));
  short_.source.origins = OriginsOfOriginal(short_.source.characters.size());
  for (const TableInPaper& table : paper_.tables) {
    if (auto moved = MovedTogether(table)) short_.tables.push_back(std::move(*moved));
  }
}

/// The place in what is looked at; nothing for what is not, or not as a whole.
std::optional<TextSpan> BeginningAndEnd::MovedTogether(TextSpan span) const {
  std::size_t before = 0;
  for (const TextSpan& part : kept_) {
    if (span.begin >= part.begin && span.end <= part.end)
      return TextSpan{span.begin - part.begin + before, span.end - part.begin + before};
    before += part.Size();
  }
  return std::nullopt;
}

std::optional<TableInPaper> BeginningAndEnd::MovedTogether(const TableInPaper& table) const {
  const std::optional<TextSpan> place = MovedTogether(table.place);
  if (!place) return std::nullopt;
  TableInPaper moved = table;
  moved.place = *place;
  const auto move = [by = table.place.begin - place->begin](TextSpan& span) {
    span = {span.begin - by, span.end - by};
  };
  for (auto& row : moved.rows) std::ranges::for_each(row, move);
  return moved;
}

std::vector<std::size_t> BeginningAndEnd::OriginalIndices(const std::vector<std::size_t>& indices) const {
  std::vector<std::size_t> original;
  original.reserve(indices.size());
  for (const std::size_t index : indices) original.push_back(indices_[index]);
  return original;
}

}  // namespace quorvantis
