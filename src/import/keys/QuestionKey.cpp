// SPDX-License-Identifier: MIT
#include "import/keys/QuestionKey.h"

#include "import/labels/LineText.h"
#include "import/lines/FoldedText.h"
#include "import/paper/PreparedLabels.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kWritingSpace = u"_＿.…·-–—()（）[]【】";

}  // namespace

bool IsBlankToFill(std::u16string_view text, TextSpan span) {
  const std::u16string_view part = span.Of(text);
  return std::ranges::all_of(part, [](char16_t unit) {
    return IsBlank(unit) || IsLineEnd(unit) || kWritingSpace.find(unit) != kWritingSpace.npos;
  });
}

bool IsUnanswered(std::u16string_view text, const OutlinedQuestion& question) {
  return !question.HasAnswer() || IsBlankToFill(text, question.answer);
}

std::u16string CapitalLetters(const std::vector<std::size_t>& options) {
  std::u16string letters;
  for (const std::size_t option : options) letters += static_cast<char16_t>(u'A' + option);
  return letters;
}

PaperText LettersInPlace(const PaperText& text, TextSpan answer, std::u16string_view letters) {
  const std::size_t shared = std::min(answer.Size(), letters.size());
  PaperText placed = text.Part({answer.begin, answer.begin + shared});
  placed.characters = letters.substr(0, shared);
  placed.AppendInserted(letters.substr(shared));
  return placed;
}

std::u16string_view LineEndIn(std::u16string_view text) {
  const std::size_t first = text.find_first_of(u"\r\n");
  if (first == text.npos || text.substr(first, 2) == u"\r\r") return u"\r";
  if (text[first] == u'\n') return u"\n";
  return text.substr(first, 2) == u"\r\n" ? u"\r\n" : u"\r";
}

PaperEdit AnswerEdit(const PaperText& text, const OutlinedQuestion& question, std::size_t end,
                     const PaperText& answer) {
  const std::u16string_view characters = text.characters;
  PaperText added;
  if (question.HasAnswer() && question.answerLabel.end <= end) {
    const TextSpan space =
        Trimmed(characters, {question.answerLabel.end, std::min(end, question.answer.end)});
    const TextSpan replaced{question.answerLabel.end, std::max(space.end, question.answerLabel.end)};
    added.AppendInserted(u" ");
    added.Append(answer);
    return {replaced, added};
  }
  added.AppendInserted(LineEndIn(characters));
  added.AppendInserted(kPreparedKey);
  added.AppendInserted(u" ");
  added.Append(answer);
  const std::size_t last = Trimmed(characters, {question.label.end, std::min(end, question.whole.end)}).end;
  return {{last, last}, added};
}

std::size_t OptionNamed(const OptionSequence& options, char16_t unit, bool latinLetters) {
  const std::size_t count = options.labels.size();
  const OptionAlphabet& alphabet = OptionAlphabets()[options.alphabet];
  const auto valid = [count](std::size_t index) { return std::min(index, count); };
  const char16_t folded = Folded(unit);
  const bool isLatin = folded >= u'a' && folded <= u'j';
  if (isLatin && latinLetters) return valid(static_cast<std::size_t>(folded - u'a'));
  const std::size_t exact = IndexInAlphabet(alphabet, unit);
  if (exact < alphabet.letters.size()) return valid(exact);
  for (std::size_t i = 0; i < alphabet.letters.size(); ++i) {
    if (Folded(alphabet.letters[i]) == folded || LookAlike(Folded(alphabet.letters[i]), folded))
      return valid(i);
  }
  for (const AlphabetLetter& letter : AlphabetLettersOf(unit)) {
    // Circled and plain digits mean the same.
    const bool areDigits = !alphabet.letters.empty() && IndexInAlphabet(alphabet, u'1') == 0;
    if (OptionAlphabets()[letter.alphabet].isSymbol && areDigits) return valid(letter.index);
  }
  if (alphabet.isSymbol && folded >= u'1' && folded <= u'9')
    return valid(static_cast<std::size_t>(folded - u'1'));
  return isLatin ? valid(static_cast<std::size_t>(folded - u'a')) : count;
}

TextSpan FirstLineOf(std::u16string_view text, TextSpan span) {
  const std::size_t end = std::min(text.substr(0, span.end).find_first_of(kLineEnds, span.begin), span.end);
  return Trimmed(text, {span.begin, end});
}

}  // namespace quorvantis
