// SPDX-License-Identifier: MIT
#include "learn/warnings/KeysShownAlike.h"

#include "import/keys/BracketedKey.h"
#include "import/keys/ShownAnswer.h"
#include "import/labels/LineText.h"
#include "model/AnswerLetters.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// A place where questions may show their keys; gives what stands there, or nothing.
using ShownKeyPlace = std::u16string (*)(const ReadQuestion& question);

bool IsOpenStatement(const ReadQuestion& question) {
  return question.kind != ReadKind::Choice && question.letters.empty();
}

/// "true" behind a statement; but "true   false" is for pupils to choose from.
std::u16string JudgementBehind(const ReadQuestion& question) {
  if (!IsOpenStatement(question)) return {};
  const std::u16string_view text = question.text;
  const auto shown = JudgementAtEndOf(text, {0, text.size()});
  if (!shown) return {};
  const std::u16string_view before = Trimmed(text, {0, shown->whole.begin}).Of(text);
  const std::size_t word = before.find_last_of(u" \t\u3000") + 1;
  return IsJudgement(before.substr(word)) ? std::u16string() : std::u16string(shown->answer.Of(text));
}

/// "( T ) The sun is a star.", and the same at its end.
std::u16string JudgementInBrackets(const ReadQuestion& question) {
  if (!IsOpenStatement(question)) return {};
  const std::u16string_view text = question.text;
  const TextSpan whole = Trimmed(text, {0, text.size()});
  for (const BracketedText& pair : BracketedWithin(text, whole)) {
    const bool isAtAnEnd = pair.whole.begin == whole.begin || pair.whole.end + 1 >= whole.end;
    if (isAtAnEnd && IsJudgement(pair.inner.Of(text))) return std::u16string(pair.whole.Of(text));
  }
  return {};
}

/// Whether a letter is that of an option, and in the key if there is one.
bool CanBeKeyOf(const ReadQuestion& question, char16_t letter) {
  const auto option = letter >= u'A' && letter <= u'E' ? OptionIndex(letter) : std::nullopt;
  return option && !question.options[*option].empty() &&
         (question.letters.empty() || question.letters.find(letter) != std::u16string::npos);
}

/// "The capital of France?   B"
std::u16string LetterBehind(const ReadQuestion& question) {
  if (question.kind != ReadKind::Choice) return {};
  const std::u16string_view text = question.text;
  const TextSpan line = Trimmed(text, {0, LineEndAfter(text, 0)});
  if (line.Size() < 4 || !CanBeKeyOf(question, text[line.end - 1])) return {};
  const std::size_t before = Trimmed(text, {line.begin, line.end - 1}).end;
  constexpr std::u16string_view kEnds = u".?!:。？！：؟_…";
  const std::size_t blanks = line.end - 1 - before;
  const bool isSetOff =
      blanks > 1 || (blanks == 1 && (text[before] == u'\t' || kEnds.find(text[before - 1]) != kEnds.npos));
  return isSetOff ? std::u16string(1, text[line.end - 1]) : std::u16string();
}

/// A line behind the first that is a letter alone.
std::u16string LetterAlone(const ReadQuestion& question) {
  if (question.kind != ReadKind::Choice) return {};
  constexpr std::u16string_view kAround = u"()[]（）【】.。．";
  const auto found = [&question, kAround](std::u16string_view text) {
    const std::vector<TextSpan> lines = LinesOf(text, {0, text.size()});
    for (std::size_t i = 1; i < lines.size(); ++i) {
      const std::u16string_view line = Trimmed(text, lines[i]).Of(text);
      const std::size_t letter = std::min(line.find_first_not_of(kAround), line.size());
      const bool isAlone = letter < line.size() && line.find_first_not_of(kAround, letter + 1) == line.npos;
      if (isAlone && CanBeKeyOf(question, line[letter])) return std::u16string(line);
    }
    return std::u16string();
  };
  std::u16string shown = found(question.text);
  for (const std::u16string& option : question.options) {
    if (shown.empty()) shown = found(option);
  }
  return shown;
}

bool IsSign(std::u16string_view shown) {
  return shown.find_first_of(u"√×✓✔✗✘✅❌✖") != shown.npos;
}

}  // namespace

std::map<std::size_t, std::u16string> KeysShownAlike(const std::vector<ReadQuestion>& questions) {
  constexpr ShownKeyPlace kPlaces[] = {&JudgementBehind, &JudgementInBrackets, &LetterBehind, &LetterAlone};
  constexpr std::size_t kSeveral = 2;
  std::map<std::size_t, std::u16string> all;
  for (const ShownKeyPlace place : kPlaces) {
    std::map<std::size_t, std::u16string> found;
    bool hasSign = false;
    for (std::size_t i = 0; i < questions.size(); ++i) {
      std::u16string shown = place(questions[i]);
      if (shown.empty()) continue;
      hasSign = hasSign || IsSign(shown);
      found.emplace(i, std::move(shown));
    }
    if (found.size() >= kSeveral || hasSign) all.merge(found);
  }
  return all;
}

}  // namespace quorvantis
