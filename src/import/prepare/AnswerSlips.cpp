// SPDX-License-Identifier: MIT
#include "import/keys/BracketedKey.h"
#include "import/keys/OptionKey.h"
#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/lines/FoldedText.h"
#include "import/paper/PreparedLabels.h"
#include "import/prepare/Steps.h"

#include <algorithm>
#include <map>
#include <string>

namespace quorvantis {
namespace {

/// The label of answers that a paper uses most, and what of it may be misspelt.
struct UsualLabel {
  std::u16string written{};  ///< "Answer:"
  std::u16string core{};     ///< "answer"
};

UsualLabel UsualLabelOf(std::u16string_view text, const PaperOutline& outline) {
  constexpr std::size_t kLongest = 40;
  std::map<std::u16string, std::size_t> counts;
  UsualLabel usual;
  for (const OutlinedQuestion& question : outline.questions) {
    if (!question.HasAnswer()) continue;
    const std::u16string written(Trimmed(text, question.answerLabel).Of(text));
    if (written.empty() || written.size() > kLongest || written == kPreparedKey) continue;
    if (++counts[written] > counts[usual.written]) usual = {written, FoldedCore(written)};
  }
  return usual;
}

/// How many letters must be changed, left out, put in or swapped to make one word of the other.
std::size_t SlipsBetween(std::u16string_view one, std::u16string_view other) {
  std::vector<std::vector<std::size_t>> slips(one.size() + 1, std::vector<std::size_t>(other.size() + 1));
  for (std::size_t i = 0; i <= one.size(); ++i) {
    for (std::size_t j = 0; j <= other.size(); ++j) {
      if (i == 0 || j == 0) {
        slips[i][j] = i + j;
        continue;
      }
      const std::size_t changed = slips[i - 1][j - 1] + (one[i - 1] == other[j - 1] ? 0 : 1);
      slips[i][j] = std::min({changed, slips[i - 1][j] + 1, slips[i][j - 1] + 1});
      const bool isSwapped = i > 1 && j > 1 && one[i - 1] == other[j - 2] && one[i - 2] == other[j - 1];
      if (isSwapped) slips[i][j] = std::min(slips[i][j], slips[i - 2][j - 2] + 1);
    }
  }
  return slips[one.size()][other.size()];
}

/// Whether a word is the label's, but for one slip in three letters.
bool IsNearly(std::u16string_view word, std::u16string_view core) {
  constexpr std::size_t kMostSlips = 2;
  const std::size_t most = std::min(kMostSlips, core.size() / 3);
  if (word.size() > core.size() + most || word.size() + most < core.size()) return false;
  return SlipsBetween(word, core) <= most;
}

/// Where the answer begins behind a misspelt label at the begin of a line; the line's end if there is none.
std::size_t BehindSlip(std::u16string_view text, TextSpan line, const UsualLabel& label) {
  constexpr std::size_t kMostBeside = 4;
  const std::size_t last = std::min(line.end, line.begin + label.core.size() + kMostBeside);
  for (std::size_t at = line.begin; at < last; ++at) {
    if (std::u16string_view(u":：;；.,=-–—").find(text[at]) == std::u16string_view::npos) continue;
    const TextSpan word{line.begin, at};
    return IsNearly(FoldedCore(word.Of(text)), label.core) ? SkipBlanks(text, at + 1, line.end) : line.end;
  }
  const std::size_t wordEnd = line.begin + label.core.size();
  const bool isBare = wordEnd < line.end && IsBlank(text[wordEnd]) &&
                      Folded(text.substr(line.begin, label.core.size())) == label.core;
  return isBare ? SkipBlanks(text, wordEnd, line.end) : line.end;
}

bool IsKeyOf(std::u16string_view text, const OutlinedQuestion& question, std::u16string_view answer) {
  if (!question.HasOptions()) return IsJudgement(answer);
  return ReadOptionKey(text, *question.options, answer).IsClear();
}

/// The edit that gives the only misspelt label of a question its usual form.
std::vector<PaperEdit> MendedLabel(std::u16string_view text, const OutlinedQuestion& question,
                                   const UsualLabel& label) {
  std::vector<PaperEdit> edits;
  const std::size_t from =
      question.HasOptions() ? question.options->labels.back().label.end : question.label.end;
  const std::vector<TextSpan> lines = LinesOf(text, {from, question.whole.end});
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const TextSpan line = Trimmed(text, lines[i]);
    const std::size_t answer = BehindSlip(text, line, label);
    if (answer == line.end || !IsKeyOf(text, question, text.substr(answer, line.end - answer))) continue;
    edits.push_back({{line.begin, answer}, InsertedText(label.written + u" ")});
  }
  if (edits.size() != 1) edits.clear();
  return edits;
}

}  // namespace

void step::AnswerSlips(PaperText& text, const PreparationContext& context) {
  const PaperOutline outline = OutlineOf(text, context);
  const UsualLabel label = UsualLabelOf(text.characters, outline);
  if (label.core.empty()) return;
  std::vector<PaperEdit> edits;
  for (const OutlinedQuestion& question : outline.questions) {
    if (question.HasAnswer()) continue;
    for (PaperEdit& edit : MendedLabel(text.characters, question, label)) edits.push_back(std::move(edit));
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
