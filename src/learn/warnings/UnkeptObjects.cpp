// SPDX-License-Identifier: MIT
#include "learn/warnings/UnkeptObjects.h"

#include "import/marking/ImportMarkers.h"

#include <string_view>

namespace quorvantis {
namespace {

int CountOf(std::u16string_view sign, std::u16string_view text) {
  int count = 0;
  for (std::size_t at = text.find(sign); at != text.npos; at = text.find(sign, at + sign.size())) ++count;
  return count;
}

}  // namespace

UnkeptObjects ObjectsOf(const ReadQuestion& question) {
  UnkeptObjects objects{CountOf(kPictureSuffix, question.text), CountOf(kPictureSuffix, question.answer),
                        CountOf(kFormulaText, question.text) + CountOf(kFormulaText, question.answer)};
  for (const std::u16string& option : question.options) {
    objects.answerPictures += CountOf(kPictureSuffix, option);
    objects.formulas += CountOf(kFormulaText, option);
  }
  return objects;
}

}  // namespace quorvantis
