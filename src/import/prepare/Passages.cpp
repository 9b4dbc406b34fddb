// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/labels/Numerals.h"
#include "import/paper/PaperOutline.h"
#include "import/paper/PreparedLabels.h"
#include "import/prepare/Steps.h"

#include <algorithm>
#include <optional>

namespace quorvantis {
namespace {

/// Whether a text tells which questions are about it, from the next one on: "questions 3 to 5", "3～4题".
bool AnnouncesQuestions(std::u16string_view text, int next) {
  constexpr std::size_t kFarthest = 6;
  constexpr int kMostQuestions = 20;
  for (std::size_t at = 0; at < text.size();) {
    const Numeral first = NumeralAt(text, at, NumeralKind::Decimal);
    if (first.size == 0) {
      ++at;
      continue;
    }
    at += first.size;
    if (first.value != next) continue;
    for (std::size_t behind = at + 1; behind < std::min(text.size(), at + kFarthest); ++behind) {
      const Numeral last = NumeralAt(text, behind, NumeralKind::Decimal);
      if (last.size == 0) continue;
      const bool isRange = text[at] != u'.' && last.value > next && last.value <= next + kMostQuestions;
      if (isRange) return true;
      break;
    }
  }
  return false;
}

/// Finds what stands between the end of a question and the next one.
class PassageSearch {
 public:
  PassageSearch(const PaperText& text, const PaperOutline& outline)
      : text_(text.characters), questions_(outline.questions) {
    tails_.reserve(questions_.size());
    for (std::size_t i = 0; i + 1 < questions_.size(); ++i) tails_.push_back(TailOf(i));
  }

  /// One for each question but the last; empty where nothing stands there.
  const std::vector<TextSpan>& Passages() {
    // Where most questions have more lines, these belong to them.
    const auto tails = std::ranges::count_if(tails_, [](const TextSpan& tail) { return !tail.IsEmpty(); });
    const bool areUsual = static_cast<std::size_t>(tails) * 3 > tails_.size() && tails_.size() > 2;
    for (std::size_t i = 0; areUsual && i < tails_.size(); ++i) {
      if (!AnnouncesQuestions(tails_[i].Of(text_), questions_[i + 1].number)) tails_[i] = {};
    }
    return tails_;
  }

 private:
  /// The lines behind that of the last option, or of the answer of a question with options.
  TextSpan TailOf(std::size_t index) const {
    const OutlinedQuestion& question = questions_[index];
    if (!question.options) return {};
    const OptionLabel& last = question.options->labels.back();
    std::size_t begin = LineEndAfter(text_, last.label.end);
    std::size_t end = question.whole.end;
    // A key that a step has put in stands behind all that precedes the next question.
    if (HasPreparedKey(question)) {
      end = question.answerLabel.begin;
    } else if (question.HasAnswer()) {
      begin = LineEndAfter(text_, question.answerLabel.end);
    }
    const TextSpan tail = Trimmed(text_, {std::min(begin, end), end});
    if (tail.IsEmpty()) return {};
    const bool isPassage =
        IsSetOff(begin, tail, question) || AnnouncesQuestions(tail.Of(text_), questions_[index + 1].number);
    return isPassage ? tail : TextSpan{};
  }

  bool HasPreparedKey(const OutlinedQuestion& question) const {
    return question.answerLabel.Of(text_).find(kPreparedKey) != std::u16string_view::npos;
  }

  /// A blank line sets a passage off, and so does its length.
  bool IsSetOff(std::size_t from, const TextSpan& tail, const OutlinedQuestion& question) const {
    std::size_t ends = 0;
    for (std::size_t at = from; at < tail.begin; ++at) {
      const bool isSecondOfPair = text_[at] == u'\n' && at > from && text_[at - 1] == u'\r';
      ends += IsLineEnd(text_[at]) && !isSecondOfPair ? 1 : 0;
    }
    std::size_t longest = 0;
    for (const OptionLabel& label : question.options->labels) {
      if (&label != &question.options->labels.back()) longest = std::max(longest, label.text.Size());
    }
    constexpr std::size_t kFarLonger = 4;
    constexpr std::size_t kLong = 120;
    return ends > 1 || tail.Size() > std::max(longest * kFarLonger, kLong);
  }

  std::u16string_view text_;
  const std::vector<OutlinedQuestion>& questions_;
  std::vector<TextSpan> tails_;
};

}  // namespace

void step::Passages(PaperText& text, const PreparationContext& context) {
  const PaperOutline outline = OutlineOf(text, context);
  std::vector<PaperEdit> edits;
  const std::vector<TextSpan> passages = PassageSearch(text, outline).Passages();
  for (std::size_t i = 0; i < passages.size(); ++i) {
    if (passages[i].IsEmpty()) continue;
    const std::size_t place = outline.questions[i + 1].label.end;
    PaperText moved = text.Part(passages[i]);
    moved.AppendInserted(u"\r");
    edits.push_back({passages[i], {}});
    edits.push_back({{place, place}, std::move(moved)});
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
