// SPDX-License-Identifier: MIT
#include "import/paper/PreparedLabels.h"

#include "text/NumberText.h"

namespace quorvantis {
namespace {

std::u16string Enclosed(std::u16string_view text) {
  std::u16string label(1, kPreparedOpen);
  label += text;
  label += kPreparedClose;
  return label;
}

}  // namespace

std::u16string PreparedNumber(int number) {
  return Enclosed(FormatInteger(number));
}

std::u16string PreparedOption(std::size_t index) {
  return Enclosed(std::u16string(1, static_cast<char16_t>(u'A' + index)));
}

}  // namespace quorvantis
