// SPDX-License-Identifier: MIT
#include "model/AnswerLetters.h"

#include "model/ExamLimits.h"
#include "text/AsciiCase.h"

namespace quorvantis {

int AnswerLettersToMask(std::u16string_view letters) {
  int mask = 0;
  for (const char16_t letter : letters) {
    const char16_t lower = AsciiLower(letter);
    if (lower >= u'a' && lower <= u'e') mask += AnswerBoxWeight(static_cast<std::size_t>(lower - u'a'));
  }
  return mask;
}

std::u16string AnswerMaskToLetters(int mask) {
  std::u16string letters;
  for (std::size_t box = 0; box < kOptionCount; ++box) {
    if ((mask & AnswerBoxWeight(box)) != 0) letters.push_back(static_cast<char16_t>(u'a' + box));
  }
  return letters;
}

}  // namespace quorvantis
