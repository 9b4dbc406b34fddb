// SPDX-License-Identifier: MIT
#include "import/keys/OptionKey.h"
#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/lines/FoldedText.h"
#include "import/prepare/KeyReports.h"
#include "import/prepare/StepNames.h"
#include "import/prepare/Steps.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kMostExamOptions = 5;

/// What the parser takes for letters of options.
bool HasParsedLetter(std::u16string_view answer) {
  return answer.find_first_of(u"ABCDE") != answer.npos;
}

/// Whether an answer consists of letters that a step has made: these are final.
bool IsMade(const PaperText& text, TextSpan answer, const PaperText& source) {
  for (std::size_t at = answer.begin; at < answer.end; ++at) {
    const char16_t unit = text.characters[at];
    if (unit < u'A' || unit > u'J') return false;
    const std::uint32_t origin = text.origins[at];
    if (origin != kInserted && source.characters[origin] == unit) return false;
  }
  return true;
}

/// Whether answers to questions with Cyrillic options are Latin letters: "C" and "D" can't be anything else.
/// Nothing is known of "B" alone, which looks like the third Cyrillic letter.
class LetterScript {
 public:
  LetterScript(const PaperText& text, const PaperOutline& outline, const PaperText& source) {
    for (const OutlinedQuestion& question : outline.questions) {
      if (!question.HasOptions() || question.answer.IsEmpty() || IsMade(text, question.answer, source))
        continue;
      for (const char16_t unit :
           FirstLineOf(text.characters, question.answer).Of(text.characters).substr(0, 2)) {
        hasLatin_ = hasLatin_ || Contains(u"CDcdFfGg", unit);
        hasCyrillic_ = hasCyrillic_ || Contains(u"БбГгДд", unit);
      }
    }
  }

  bool IsLatin() const { return hasLatin_ && !hasCyrillic_; }

  /// Whether a Latin letter means two different options.
  bool IsUnsure(const OptionSequence& options, std::u16string_view answer) const {
    if (hasLatin_ != hasCyrillic_ || answer.empty() || !IsCyrillic(options)) return false;
    return Contains(u"BEe", answer.front()) && (answer.size() == 1 || !AreInOneWord(answer[0], answer[1]));
  }

 private:
  static bool Contains(std::u16string_view units, char16_t unit) { return units.find(unit) != units.npos; }

  bool hasLatin_ = false;
  bool hasCyrillic_ = false;
};

/// The letters for the answers of a paper's choice questions.
class AnswerLetters {
 public:
  AnswerLetters(const PaperText& text, const PaperOutline& outline, const PaperText& source)
      : text_(text), source_(source), script_(text, outline, source) {}

  /// Nothing if the answer names no option, or one that an exam can't hold.
  std::u16string Of(const OutlinedQuestion& question) const {
    const std::u16string_view answer = question.answer.Of(text_.characters);
    if (IsMade(text_, question.answer, source_))
      return HasUnheldLetter(answer) ? u"" : std::u16string(answer);
    if (script_.IsUnsure(*question.options, answer)) return {};
    const OptionKey key = ReadOptionKey(text_.characters, *question.options, answer, script_.IsLatin());
    if (!key.IsClear() || key.options.back() >= kMostExamOptions) return {};
    return CapitalLetters(key.options);
  }

 private:
  static bool HasUnheldLetter(std::u16string_view letters) {
    return letters.find_first_of(u"FGHIJ") != letters.npos;
  }

  const PaperText& text_;
  const PaperText& source_;
  LetterScript script_;
};

bool IsChoiceAnswer(std::u16string_view text, const OutlinedQuestion& question) {
  return question.HasOptions() && !IsUnanswered(text, question);
}

}  // namespace

void step::KeyLetters(PaperText& text, const PreparationContext& context) {
  const PaperOutline outline = OutlineOf(text, context);
  const std::u16string_view characters = text.characters;
  const AnswerLetters lettersOf(text, outline, context.paper.source);
  std::vector<PaperEdit> edits;
  for (const OutlinedQuestion& question : outline.questions) {
    if (!IsChoiceAnswer(characters, question)) continue;
    const std::u16string letters = lettersOf.Of(question);
    const std::u16string_view answer = question.answer.Of(characters);
    // An unclear answer stays to be read, unless the parser would find letters in it.
    if (answer == letters || (letters.empty() && !HasParsedLetter(answer))) continue;
    edits.push_back({question.answer, LettersInPlace(text, question.answer, letters)});
  }
  ApplyEdits(text, std::move(edits));
}

std::vector<UnclearKey> KeysNotOptions(const Paper& paper, const ImportSettings& rules,
                                       const CancelHook& isCancelled) {
  const PaperText text = PreparedBefore(paper, rules, step_name::kKeyLetters, isCancelled);
  const PaperOutline outline = OutlineOf(text, rules, isCancelled);
  const AnswerLetters lettersOf(text, outline, paper.source);
  std::vector<UnclearKey> unclear;
  for (const OutlinedQuestion& question : outline.questions) {
    if (!IsChoiceAnswer(text.characters, question)) continue;
    if (!lettersOf.Of(question).empty()) continue;
    const auto index = static_cast<std::size_t>(&question - outline.questions.data());
    unclear.push_back({index, question.number, std::u16string(question.answer.Of(text.characters))});
  }
  return unclear;
}

}  // namespace quorvantis
