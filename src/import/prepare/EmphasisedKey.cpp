// SPDX-License-Identifier: MIT
#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/prepare/Steps.h"

#include <algorithm>
#include <array>

namespace quorvantis {
namespace {

/// From the strongest sign of a key to the weakest.
constexpr std::uint8_t kEmphasisKinds[] = {emphasis::kHighlighted, emphasis::kColoured, emphasis::kBold,
                                           emphasis::kUnderlined, emphasis::kItalic};

/// The indices of the options that are emphasised in one way.
using EmphasisedOptions = std::vector<std::size_t>;

/// Whether nearly all characters of a span are emphasised: not just a word of it.
bool IsEmphasised(const PaperText& text, TextSpan span, std::uint8_t kind) {
  std::size_t inked = 0;
  std::size_t emphasised = 0;
  for (std::size_t at = span.begin; at < span.end; ++at) {
    if (IsBlank(text.characters[at])) continue;
    ++inked;
    if ((text.emphasis[at] & kind) != 0) ++emphasised;
  }
  return inked > 0 && emphasised * 5 >= inked * 4;
}

/// A kind of emphasis on the texts, or on the labels alone, as a way in which a paper shows its key.
class EmphasisScheme {
 public:
  EmphasisScheme(std::uint8_t kind, bool isOnLabels) : kind_(kind), isOnLabels_(isOnLabels) {}

  EmphasisedOptions OptionsOf(const PaperText& text, const OptionSequence& options) const {
    EmphasisedOptions found;
    for (const OptionLabel& label : options.labels) {
      const TextSpan span = isOnLabels_ ? label.letter : FirstLineOf(text.characters, label.text);
      if (IsEmphasised(text, span, kind_)) found.push_back(label.index);
    }
    return found;
  }

  /// A key names some options, not all, and rarely more than half of them.
  static bool IsKey(const EmphasisedOptions& found, std::size_t count) {
    return !found.empty() &&
           (found.size() * 2 <= count || (found.size() < count && count <= 3 && found.size() == 1));
  }

  void Count(const EmphasisedOptions& found, std::size_t count) {
    ++questions_;
    if (!IsKey(found, count)) return;
    score_ += found.size() == 1 ? 2U : 1U;
    ++keys_;
    ++ofIndex_[std::min(found.front(), ofIndex_.size() - 1)];
  }

  /// Whether most questions show a key, and not the same option each time, as a careless format would.
  bool IsCredible() const {
    constexpr std::size_t kEnoughToCompare = 6;
    const bool isSameAlways = keys_ >= kEnoughToCompare && *std::ranges::max_element(ofIndex_) == keys_;
    return keys_ > 0 && keys_ * 2 >= questions_ && !isSameAlways;
  }

  std::size_t Score() const { return score_; }

 private:
  std::uint8_t kind_;
  bool isOnLabels_;
  std::size_t questions_ = 0;
  std::size_t keys_ = 0;
  std::size_t score_ = 0;
  std::array<std::size_t, 10> ofIndex_{};
};

bool WaitsForKey(const PaperText& text, const OutlinedQuestion& question) {
  return question.HasOptions() && IsUnanswered(text.characters, question);
}

/// The scheme that most questions follow, if most follow one. Labels count where no texts do.
std::optional<EmphasisScheme> SchemeOf(const PaperText& text, const PaperOutline& outline) {
  for (const bool isOnLabels : {false, true}) {
    std::optional<EmphasisScheme> best;
    for (const std::uint8_t kind : kEmphasisKinds) {
      EmphasisScheme scheme(kind, isOnLabels);
      for (const OutlinedQuestion& question : outline.questions) {
        if (WaitsForKey(text, question))
          scheme.Count(scheme.OptionsOf(text, *question.options), question.options->labels.size());
      }
      if (scheme.IsCredible() && (!best || scheme.Score() > best->Score())) best = scheme;
    }
    if (best) return best;
  }
  return std::nullopt;
}

}  // namespace

void step::EmphasisedKey(PaperText& text, const PreparationContext& context) {
  if (std::ranges::all_of(text.emphasis, [](std::uint8_t kinds) { return kinds == 0; })) return;
  const PaperOutline outline = OutlineOf(text, context);
  const std::optional<EmphasisScheme> scheme = SchemeOf(text, outline);
  if (!scheme) return;
  std::vector<PaperEdit> edits;
  for (const OutlinedQuestion& question : outline.questions) {
    if (!WaitsForKey(text, question)) continue;
    const EmphasisedOptions found = scheme->OptionsOf(text, *question.options);
    if (!EmphasisScheme::IsKey(found, question.options->labels.size())) continue;
    edits.push_back(AnswerEdit(text, question, question.whole.end, InsertedText(CapitalLetters(found))));
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
