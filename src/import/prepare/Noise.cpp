// SPDX-License-Identifier: MIT
#include "import/keys/FrontInstructions.h"
#include "import/keys/KeyReader.h"
#include "import/labels/LineText.h"
#include "import/lines/EndLines.h"
#include "import/lines/NoiseLines.h"
#include "import/lines/PageHeads.h"
#include "import/lines/PlatformLines.h"
#include "import/lines/ScoreText.h"
#include "import/marking/RuleKeys.h"
#include "import/paper/PaperOutline.h"
#include "import/paper/PaperRewrite.h"
#include "import/paper/PreparedLabels.h"
#include "import/paper/RuleMatches.h"
#include "import/prepare/Steps.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Finds what of a text is no part of the exam.
class NoiseSearch {
 public:
  NoiseSearch(const PaperText& text, const PreparationContext& context)
      : text_(text.characters),
        outline_(OutlineOf(text, context)),
        lines_(LinesOf(text_, {0, text_.size()})),
        isKept_(lines_.size(), false) {
    KeepLabels();
    isNoise_ = FindPageHeads(text_, lines_);
    FindTitles(context);
    FindTags();
    FindPlatformLines();
    FindFields();
    FindEnds();
    FindWishes();
    KeepOnlyTexts();
  }

  std::vector<PaperEdit> Edits() {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (!IsNoise(i)) continue;
      TextSpan span = lines_[i];
      while (i + 1 < lines_.size() && IsNoise(i + 1)) span.end = lines_[++i].end;
      edits_.push_back({WithLineEnd(text_, span), {}});
    }
    return std::move(edits_);
  }

 private:
  bool IsNoise(std::size_t line) const { return isNoise_[line] && !isKept_[line]; }
  std::u16string_view Content(std::size_t line) const { return Trimmed(text_, lines_[line]).Of(text_); }

  std::size_t LineAt(std::size_t place) const {
    const auto after = std::ranges::upper_bound(lines_, place, {}, &TextSpan::begin);
    return after == lines_.begin() ? 0 : static_cast<std::size_t>(after - lines_.begin()) - 1;
  }

  void Keep(TextSpan label) {
    const TextSpan kept = Trimmed(text_, label);
    if (!kept.IsEmpty()) isKept_[LineAt(kept.begin)] = true;
  }

  /// Lines with a number, an option or the label of an answer. What is after the heading of the answers is
  /// no part of any question. Rules may leave out what can be instructions, numbered as questions are.
  void KeepLabels() {
    const std::size_t instructions = NumberedInFront(text_, outline_);
    for (std::size_t i = instructions; i < outline_.questions.size(); ++i) {
      const OutlinedQuestion& question = outline_.questions[i];
      Keep(question.label);
      if (question.HasAnswer()) Keep(question.answerLabel);
      if (!question.options) continue;
      for (const OptionLabel& option : question.options->labels) Keep(option.label);
    }
    if (outline_.answerSection.IsEmpty()) return;
    for (std::size_t i = LineAt(outline_.answerSection.begin); i < lines_.size(); ++i) isKept_[i] = true;
  }

  /// The marking would take ten more characters before each title.
  void FindTitles(const PreparationContext& context) {
    const TextSpan questions{0, outline_.answerSection.begin};
    for (const TextSpan& match :
         MatchesOf(rule_key::kTitle, context.rules.m_strTitle, text_, questions, context.isCancelled)) {
      const TextSpan title = Trimmed(text_, match);
      if (title.IsEmpty()) continue;
      const std::size_t first = LineAt(title.begin);
      const std::size_t last = LineAt(title.end - 1);
      const auto isKept = [this](std::size_t line) { return static_cast<bool>(isKept_[line]); };
      bool touchesLabel = false;
      for (std::size_t i = first; i <= last; ++i)
        touchesLabel = touchesLabel || isKept(i) || HoldsAnswers(text_, lines_[i]);
      if (touchesLabel) continue;
      if (BeginsLine(text_, title.begin)) {
        std::fill(isNoise_.begin() + static_cast<std::ptrdiff_t>(first),
                  isNoise_.begin() + static_cast<std::ptrdiff_t>(last) + 1, true);
      } else {
        edits_.push_back({title, {}});
      }
    }
  }

  void FindTags() {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (IsTagLine(Content(i))) isNoise_[i] = true;
    }
  }

  /// Buttons and the like of a web page; a single line may be text.
  void FindPlatformLines() {
    constexpr std::size_t kFewest = 2;
    std::vector<std::size_t> found;
    std::size_t state = lines_.size();
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const std::u16string_view content = Content(i);
      if (content.empty()) continue;
      const bool isPlatform = IsPlatformLine(content);
      if (isPlatform) found.push_back(i);
      if (isPlatform && state < i) found.push_back(state);
      state = IsStateLine(content) ? i : lines_.size();
    }
    if (found.size() < kFewest) return;
    for (const std::size_t line : found) isNoise_[line] = true;
  }

  /// "____/5" by itself may be a fraction to fill in, but not at every other question.
  void FindFields() {
    std::vector<std::size_t> bare;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (!IsScoreField(Content(i))) continue;
      if (IsFieldWithoutWord(Content(i))) {
        bare.push_back(i);
      } else {
        isNoise_[i] = true;
      }
    }
    if (bare.size() < 2 || bare.size() * 2 < outline_.questions.size()) return;
    for (const std::size_t line : bare) isNoise_[line] = true;
  }

  static bool IsFieldWithoutWord(std::u16string_view line) {
    constexpr std::u16string_view kOfField = u"_＿…./:：()[]（）【】|- 0123456789";
    return line.find_first_not_of(kOfField) == line.npos;
  }

  /// Separators and sources at the ends of questions, and separators in front of the first one.
  void FindEnds() {
    for (const OutlinedQuestion& question : outline_.questions) {
      FindEnd(question.whole);
      if (question.HasAnswer()) FindEnd({question.whole.begin, question.answerLabel.begin});
    }
    if (outline_.questions.empty()) return;
    const OutlinedQuestion& last = outline_.questions.back();
    FindEndOfPaper(last.whole);
    if (last.HasAnswer()) FindEndOfPaper({last.whole.begin, last.answerLabel.begin});
    for (std::size_t i = 0; i < lines_.size() && lines_[i].end <= outline_.front.end; ++i) {
      if (IsSeparatorLine(Content(i))) isNoise_[i] = true;
    }
  }

  /// Good wishes and "The End" behind the last question, or before the answers at the end.
  void FindEndOfPaper(TextSpan question) {
    const TextSpan kept = Trimmed(text_, question);
    if (kept.IsEmpty()) return;
    const std::size_t first = LineAt(kept.begin);
    for (std::size_t i = LineAt(kept.end - 1); i > first && !isKept_[i]; --i) {
      const bool isEnd = IsEndLine(Content(i)) || IsSeparatorLine(Content(i));
      if (isEnd) isNoise_[i] = true;
      if (!Content(i).empty() && !isEnd) break;
    }
  }

  /// What a blank line sets off behind the last option or answer of all, if no other question has the like.
  void FindWishes() {
    constexpr std::size_t kFewest = 3;
    constexpr std::ptrdiff_t kMostLines = 2;
    const auto& questions = outline_.questions;
    if (questions.size() < kFewest || !questions.back().HasOptions()) return;
    const auto hasTail = [this](const OutlinedQuestion& question) { return BehindBlank(question) != 0; };
    if (std::any_of(questions.begin(), questions.end() - 1, hasTail)) return;
    const std::size_t first = BehindBlank(questions.back());
    if (first == 0) return;
    const std::size_t last = LineAt(Trimmed(text_, questions.back().whole).end - 1);
    std::ptrdiff_t lines = 0;
    for (std::size_t i = first; i <= last; ++i) {
      if (Content(i).empty()) continue;
      if (isKept_[i] || !CanBeWish(Content(i)) || ++lines > kMostLines) return;
    }
    for (std::size_t i = first; i <= last; ++i) isNoise_[i] = true;
  }

  /// The first line behind a blank one within the last option or the answer; 0 if there is none.
  std::size_t BehindBlank(const OutlinedQuestion& question) const {
    if (!question.HasOptions()) return 0;
    // A key that a step has put in stands behind all of it.
    const bool isOwn = question.HasAnswer() &&
                       question.answerLabel.Of(text_).find(kPreparedKey) == std::u16string_view::npos;
    const TextSpan last = isOwn ? question.answer : question.options->labels.back().text;
    if (last.IsEmpty()) return 0;
    const std::size_t end = LineAt(last.end - 1);
    for (std::size_t i = LineAt(last.begin) + 1; i < end; ++i) {
      if (Content(i).empty()) return i + 1;
    }
    return 0;
  }

  void FindEnd(TextSpan question) {
    const TextSpan kept = Trimmed(text_, question);
    if (kept.IsEmpty()) return;
    const std::size_t first = LineAt(kept.begin);
    for (std::size_t i = LineAt(kept.end - 1); i > first && !isKept_[i]; --i) {
      const std::u16string_view content = Content(i);
      if (IsSeparatorLine(content) || IsSourceLine(content) || IsScoreSum(content)) isNoise_[i] = true;
      if (!content.empty() && !isNoise_[i]) break;
    }
  }

  /// A question that would have no text left keeps it.
  void KeepOnlyTexts() {
    const std::size_t instructions = NumberedInFront(text_, outline_);
    for (std::size_t index = instructions; index < outline_.questions.size(); ++index) {
      const OutlinedQuestion& question = outline_.questions[index];
      const TextSpan body = Trimmed(text_, {question.label.end, question.answerLabel.begin});
      if (body.IsEmpty()) continue;
      const std::size_t first = LineAt(body.begin);
      const std::size_t last = LineAt(body.end - 1);
      bool hasText = false;
      for (std::size_t i = first; i <= last && !hasText; ++i) hasText = !IsNoise(i) && !Content(i).empty();
      for (std::size_t i = first; i <= last && !hasText; ++i) isKept_[i] = true;
    }
  }

  std::u16string_view text_;
  PaperOutline outline_;
  std::vector<TextSpan> lines_;
  std::vector<bool> isKept_;  ///< lines that must stay
  std::vector<bool> isNoise_;
  std::vector<PaperEdit> edits_;
};

}  // namespace

void step::Noise(PaperText& text, const PreparationContext& context) {
  ApplyEdits(text, NoiseSearch(text, context).Edits());
}

}  // namespace quorvantis
