// SPDX-License-Identifier: MIT
#include "text/MessageText.h"

namespace quorvantis {

std::u16string FillMessage(std::u16string_view format, std::initializer_list<std::u16string_view> values) {
  std::u16string message;
  auto value = values.begin();
  for (std::size_t i = 0; i < format.size(); ++i) {
    const std::u16string_view two = format.substr(i, 2);
    if (value != values.end() && (two == u"%s" || two == u"%d")) {
      message += *value++;
      ++i;
    } else {
      message += format[i];
    }
  }
  return message;
}

}  // namespace quorvantis
