// SPDX-License-Identifier: MIT
#include "versions/plan/OptionOrder.h"

#include "model/AnswerLetters.h"
#include "text/AsciiCase.h"

#include <algorithm>

namespace quorvantis {

bool IsOptionOrder(const OptionOrder& order) {
  return std::ranges::is_permutation(order, kSourceOrder);
}

bool CanMoveKey(const ExamQuestion& question) {
  return AsciiLower(question.answerLetters) == AnswerMaskToLetters(question.answerMask);
}

std::u16string MovedKey(std::u16string_view letters, const OptionOrder& order) {
  std::u16string moved;
  for (std::size_t place = 0; place < kOptionCount; ++place) {
    const char16_t source = OptionLetter(order[place]);
    const auto found = std::ranges::find(letters, source, [](char16_t unit) { return AsciiUpper(unit); });
    if (found == letters.end()) continue;
    const char16_t letter = OptionLetter(place);
    moved += *found == source ? letter : AsciiLower(letter);
  }
  return moved;
}

void MoveOptions(ExamQuestion& question, const OptionOrder& order) {
  if (order == kSourceOrder) return;
  const OptionTexts source = question.options;
  for (std::size_t place = 0; place < kOptionCount; ++place) question.options[place] = source[order[place]];
  question.answerLetters = MovedKey(question.answerLetters, order);
  question.answerMask = AnswerLettersToMask(question.answerLetters);
}

}  // namespace quorvantis
