// SPDX-License-Identifier: MIT
#include "render/sheets/ReadingDirection.h"

#include "text/LikelyTag.h"

#include <string_view>

namespace quorvantis {
namespace {

/// Hebrew, Arabic and their neighbours, with their presentation forms.
bool IsRightToLeftLetter(char16_t unit) {
  return (unit >= 0x05D0 && unit <= 0x08FF && !(unit >= 0x0660 && unit <= 0x0669)) ||
         (unit >= 0xFB1D && unit <= 0xFDFF) || (unit >= 0xFE70 && unit <= 0xFEFC);
}

bool IsLeftToRightLetter(char16_t unit) {
  const auto lower = static_cast<char16_t>(unit | 0x20);
  if (unit < 0x80) return lower >= u'a' && lower <= u'z';
  return (unit >= 0x00C0 && unit < 0x0590) || (unit >= 0x0900 && unit < 0x2000) ||
         (unit >= 0x3040 && unit < 0xD800);
}

constexpr std::size_t kLongestTag = 500;

struct LetterCount {
  std::size_t leftToRight = 0;
  std::size_t rightToLeft = 0;

  void Add(std::u16string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (const std::size_t tag = text[i] == u'<' ? LikelyTagLength(text.substr(i), kLongestTag) : 0;
          tag > 0) {
        i += tag - 1;
        continue;
      }
      rightToLeft += IsRightToLeftLetter(text[i]);
      leftToRight += IsLeftToRightLetter(text[i]);
    }
  }
};

}  // namespace

bool RunsRightToLeft(const ExamPaper& exam, bool languageIsRightToLeft) {
  LetterCount count;
  count.Add(exam.title);
  for (int n = 1; n <= exam.questionCount; ++n) {
    count.Add(exam.Question(n).text);
    for (const std::u16string& option : exam.Question(n).options) count.Add(option);
  }
  if (count.leftToRight + count.rightToLeft == 0) return languageIsRightToLeft;
  return count.rightToLeft > count.leftToRight;
}

}  // namespace quorvantis
