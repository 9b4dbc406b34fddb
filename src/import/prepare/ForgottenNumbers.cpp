// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/lines/LineLabel.h"
#include "import/lines/LineNumber.h"
#include "import/lines/MisreadNumber.h"
#include "import/paper/PaperOutline.h"
#include "import/paper/PaperRewrite.h"
#include "import/paper/PreparedLabels.h"
#include "import/prepare/Steps.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// The lines of what the rules take for one question, which may be several.
class SeveralInOne {
 public:
  SeveralInOne(std::u16string_view text, const OutlinedQuestion& question)
      : text_(text), question_(question), lines_(LinesOf(text, {question.label.end, question.whole.end})) {}

  /// Where further questions begin: the stem above a second option A, and so on.
  std::vector<std::size_t> FurtherStems() const {
    std::vector<std::size_t> stems;
    if (!question_.options) return stems;
    // The options that were found may be those of the second question.
    std::size_t barrier = 0;
    while (barrier < lines_.size() && !IsFirstOption(barrier)) ++barrier;
    for (std::size_t i = barrier + 1; i < lines_.size(); ++i) {
      if (IsFirstOption(i)) {
        const std::optional<std::size_t> stem = StemAbove(i, barrier);
        if (stem && HasSecondOption(i)) stems.push_back(*stem);
        barrier = i;
      } else if (IsOption(i) || IsAnswer(i)) {
        barrier = i;
      }
    }
    return stems;
  }

 private:
  std::size_t LineAt(std::size_t place) const {
    const auto behind =
        std::upper_bound(lines_.begin(), lines_.end(), place,
                         [](std::size_t at, const TextSpan& line) { return at < line.begin; });
    return behind == lines_.begin() ? 0 : static_cast<std::size_t>(behind - lines_.begin()) - 1;
  }

  bool IsEmpty(std::size_t line) const { return Trimmed(text_, lines_[line]).IsEmpty(); }
  bool IsAnswer(std::size_t line) const {
    return question_.HasAnswer() && LineAt(Trimmed(text_, question_.answerLabel).begin) == line;
  }

  /// The index of a label at the beginning of a line that is written like those of the options; -1 for none.
  int OptionIndex(std::size_t line) const {
    const OptionLabel& own = question_.options->labels.front();
    const std::optional<LineLabel> label = LineLabelOf(text_, lines_[line]);
    if (!label || label->open != own.open) return -1;
    const char16_t close = label->close.IsEmpty() ? u'\0' : text_[label->close.begin];
    if (close != own.close) return -1;
    for (const AlphabetLabel& one : AlphabetLabelsAt(text_, label->letter.begin)) {
      if (one.letter.alphabet == question_.options->alphabet) return static_cast<int>(one.letter.index);
    }
    return -1;
  }

  bool IsFirstOption(std::size_t line) const { return OptionIndex(line) == 0; }
  bool IsOption(std::size_t line) const { return OptionIndex(line) >= 0; }

  bool HasSecondOption(std::size_t line) const {
    const std::size_t end = LineEnd(line + 4);
    const auto options = FindOptions(text_, {lines_[line].begin, end});
    return options && options->alphabet == question_.options->alphabet &&
           options->labels.front().letter.begin < lines_[line].end;
  }

  std::size_t LineEnd(std::size_t line) const { return lines_[std::min(line, lines_.size() - 1)].end; }

  /// The last lines without a blank one between them; without any blank line, the last line, for an option
  /// may be longer.
  std::optional<std::size_t> StemAbove(std::size_t option, std::size_t barrier) const {
    std::size_t last = option - 1;
    while (last > barrier && IsEmpty(last)) --last;
    if (last == barrier) return std::nullopt;
    std::size_t first = last;
    while (first - 1 > barrier && !IsEmpty(first - 1)) --first;
    const bool isSetOff = first - 1 > barrier;
    return SkipBlanks(text_, lines_[isSetOff ? first : last].begin, text_.size());
  }

  std::u16string_view text_;
  const OutlinedQuestion& question_;
  std::vector<TextSpan> lines_;
};

/// Questions that lack a number, or whose number is misread.
class NumberMending {
 public:
  NumberMending(const PaperText& text, const PaperOutline& outline)
      : paper_(text), text_(text.characters), questions_(outline.questions) {
    if (questions_.empty()) return;
    if (questions_.front().number == 2) MendIn(outline.front, 1, 2);
    for (std::size_t i = 0; i < questions_.size(); ++i) {
      const int next = i + 1 < questions_.size() ? questions_[i + 1].number : 0;
      const TextSpan body{questions_[i].label.end, questions_[i].whole.end};
      if (questions_[i].number > 0) MendBehind(questions_[i], body, next);
    }
  }

  std::vector<PaperEdit> Edits() { return std::move(edits_); }

 private:
  void MendBehind(const OutlinedQuestion& question, TextSpan body, int next) {
    const std::size_t before = edits_.size();
    constexpr int kMostMissing = 4;
    const bool isMissing = next > question.number + 1 && next <= question.number + kMostMissing;
    if (isMissing) MendIn(body, question.number + 1, next);
    if (edits_.size() > before) return;
    int number = question.number;
    for (const std::size_t stem : SeveralInOne(text_, question).FurtherStems()) {
      ++number;
      if (next > 0 && number >= next && next > question.number) return;
      const TextSpan line{stem, LineEndAfter(text_, stem)};
      const TextSpan label = MisreadNumberAt(text_, line, number);
      // A number of its own, but of another kind or out of order.
      if (label.IsEmpty() && LineNumberOf(text_, line)) return;
      Put(label, number);
    }
  }

  /// Mends misread labels of the numbers from `first` to the one before `end`, in their order.
  void MendIn(TextSpan body, int first, int end) {
    for (const TextSpan& line : LinesOf(text_, body)) {
      // The rest of the line that the question's own number begins.
      if (!BeginsLine(text_, line.begin) || first == end) continue;
      const TextSpan label = MisreadNumberAt(text_, line, first);
      if (!label.IsEmpty()) Put(label, first++);
    }
  }

  void Put(TextSpan label, int number) {
    edits_.push_back({label, Rewritten(paper_, label, PreparedNumber(number) + u" ")});
  }

  const PaperText& paper_;
  std::u16string_view text_;
  const std::vector<OutlinedQuestion>& questions_;
  std::vector<PaperEdit> edits_;
};

}  // namespace

void step::ForgottenNumbers(PaperText& text, const PreparationContext& context) {
  const PaperOutline outline = OutlineOf(text, context.rules, context.isCancelled);
  ApplyEdits(text, NumberMending(text, outline).Edits());
}

}  // namespace quorvantis
