// SPDX-License-Identifier: MIT
#include "model/AnswerLetters.h"

#include "model/ExamLimits.h"
#include "text/AsciiCase.h"

namespace quorvantis {

std::optional<std::size_t> OptionIndex(char16_t letter) {
  const auto index = static_cast<std::size_t>(AsciiUpper(letter) - OptionLetter(0));
  return index < kOptionCount ? std::optional(index) : std::nullopt;
}

int AnswerLettersToMask(std::u16string_view letters) {
  int mask = 0;
  for (const char16_t letter : letters) {
    if (const auto box = OptionIndex(letter)) mask += AnswerBoxWeight(*box);
  }
  return mask;
}

std::u16string AnswerMaskToLetters(int mask) {
  std::u16string letters;
  for (std::size_t box = 0; box < kOptionCount; ++box) {
    if ((mask & AnswerBoxWeight(box)) != 0) letters.push_back(AsciiLower(OptionLetter(box)));
  }
  return letters;
}

}  // namespace quorvantis
