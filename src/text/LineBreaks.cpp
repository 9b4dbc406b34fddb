// SPDX-License-Identifier: MIT
#include "text/LineBreaks.h"

namespace quorvantis {

std::u16string WithLineEnds(std::u16string_view text, std::u16string_view lineEnd) {
  std::u16string result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isPair = text.substr(at, 2) == u"\r\n";
    if (isPair) ++at;
    if (text[at] == u'\r' || text[at] == u'\n') {
      result += lineEnd;
    } else {
      result.push_back(text[at]);
    }
  }
  return result;
}

}  // namespace quorvantis
