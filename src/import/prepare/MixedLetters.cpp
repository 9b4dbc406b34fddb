// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/lines/LineLabel.h"
#include "import/lines/LineWords.h"
#include "import/paper/PaperRewrite.h"
#include "import/prepare/Steps.h"
#include "text/ScriptDigits.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Labels at the beginnings of lines, or set off within them, each the next letter of one alphabet, or
/// looking like it.
struct LookAlikeRun {
  const OptionAlphabet* alphabet = nullptr;
  std::vector<LineLabel> labels;
  std::size_t exact = 0;  ///< letters of the alphabet itself

  bool IsBetterThan(const LookAlikeRun& other) const {
    if (labels.size() != other.labels.size()) return labels.size() > other.labels.size();
    return exact > other.exact;
  }
};

class LetterMending {
 public:
  explicit LetterMending(const PaperText& text) : paper_(text), text_(text.characters) {
    for (const TextSpan& line : LinesOf(text_, {0, text_.size()})) {
      if (const auto label = LineLabelOf(text_, line); label && label->letter.Size() == 1)
        labels_.push_back(*label);
      AddSetOff(line);
    }
  }

  std::vector<PaperEdit> Edits() {
    for (std::size_t i = 0; i < labels_.size();) {
      const LookAlikeRun run = BestFrom(i);
      if (run.labels.size() >= 2) Mend(run);
      i += std::max<std::size_t>(run.labels.size(), 1);
    }
    return std::move(edits_);
  }

 private:
  /// Labels behind wide gaps within the line; a letter without any mark is a word there.
  void AddSetOff(TextSpan line) {
    for (std::size_t at = SkipBlanks(text_, line.begin, line.end); at < line.end; ++at) {
      if (!IsBlank(text_[at])) continue;
      const std::size_t next = SkipBlanks(text_, at, line.end);
      const bool isWide = next - at > 1 || text_[at] == u'\t' || text_[at] == u'\u3000';
      at = next - 1;
      if (!isWide) continue;
      const auto label = LineLabelOf(text_, {next, line.end});
      if (label && label->letter.Size() == 1 && !label->close.IsEmpty()) labels_.push_back(*label);
    }
  }

  char16_t LetterOf(const LineLabel& label) const { return text_[label.letter.begin]; }
  char16_t CloseOf(const LineLabel& label) const {
    return label.close.IsEmpty() ? u'\0' : text_[label.close.begin];
  }

  static bool CanBegin(char16_t letter, const OptionAlphabet& alphabet) {
    return letter == alphabet.letters[0] || (!alphabet.others.empty() && letter == alphabet.others[0]) ||
           LookAlike(letter, alphabet.letters[0]);
  }

  LookAlikeRun BestFrom(std::size_t first) const {
    LookAlikeRun best;
    for (const OptionAlphabet& alphabet : OptionAlphabets()) {
      if (alphabet.isSymbol || alphabet.letters.empty() || DigitValueOf(alphabet.letters[0]) >= 0) continue;
      if (!CanBegin(LetterOf(labels_[first]), alphabet)) continue;
      LookAlikeRun run = RunFrom(first, alphabet);
      if (run.IsBetterThan(best)) best = std::move(run);
    }
    return best;
  }

  LookAlikeRun RunFrom(std::size_t first, const OptionAlphabet& alphabet) const {
    constexpr std::size_t kMostBetween = 3;  // lines within an option that begin with a word of one letter
    LookAlikeRun run{&alphabet, {}, 0};
    std::size_t between = 0;
    for (std::size_t i = first; i < labels_.size(); ++i) {
      const LineLabel& label = labels_[i];
      const char16_t letter = LetterOf(label);
      const bool fits = IndexInAlphabet(alphabet, letter) == run.labels.size() &&
                        label.open == labels_[first].open && run.labels.size() < alphabet.letters.size();
      if (!fits) {
        if (label.close.IsEmpty() && !run.labels.empty() && ++between <= kMostBetween) continue;
        break;
      }
      between = 0;
      run.labels.push_back(label);
      if (alphabet.letters.find(letter) != alphabet.letters.npos ||
          (letter != u' ' && alphabet.others.find(letter) != alphabet.others.npos))
        ++run.exact;
    }
    return run;
  }

  void Mend(const LookAlikeRun& run) {
    MendCloses(run);
    constexpr std::size_t kFewestAlone = 3;
    if (run.exact == run.labels.size() || (run.exact == 0 && run.labels.size() < kFewestAlone)) return;
    for (std::size_t i = 0; i < run.labels.size(); ++i) {
      const char16_t letter = run.alphabet->letters[i];
      const TextSpan place = run.labels[i].letter;
      if (LookAlike(LetterOf(run.labels[i]), letter))
        edits_.push_back({place, Rewritten(paper_, place, {&letter, 1})});
    }
  }

  /// "A," among "B.", "C." and "D.".
  void MendCloses(const LookAlikeRun& run) {
    constexpr std::size_t kFewest = 3;
    if (run.labels.size() < kFewest) return;
    const char16_t usual = CloseOf(run.labels[CloseOf(run.labels[0]) == CloseOf(run.labels[1]) ? 0 : 2]);
    const auto differs = [&](const LineLabel& label) { return CloseOf(label) != usual; };
    if (usual == 0 || std::ranges::count_if(run.labels, differs) != 1) return;
    const TextSpan place = std::ranges::find_if(run.labels, differs)->close;
    edits_.push_back({place, Rewritten(paper_, place, {&usual, 1})});
  }

  const PaperText& paper_;
  std::u16string_view text_;
  std::vector<LineLabel> labels_;
  std::vector<PaperEdit> edits_;
};

}  // namespace

void step::MixedLetters(PaperText& text, const PreparationContext& /*context*/) {
  ApplyEdits(text, LetterMending(text).Edits());
}

}  // namespace quorvantis
