// SPDX-License-Identifier: MIT
#include "render/TextToHtml.h"

#include <algorithm>

namespace quorvantis {

std::u16string TextToHtml(std::u16string_view text) {
  constexpr std::size_t kLineEnd = 2;
  std::u16string html;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find_first_of(u"\r\n"), text.size());
    html += text.substr(0, length);
    html += u"<br>";
    text.remove_prefix(std::min(length + kLineEnd, text.size()));
  }
  return html;
}

}  // namespace quorvantis
