// SPDX-License-Identifier: MIT
#include "text/HtmlEscape.h"

namespace quorvantis {

std::u16string EscapeHtml(std::u16string_view text) {
  std::u16string escaped;
  escaped.reserve(text.size());
  for (const char16_t unit : text) {
    switch (unit) {
      case u'&':
        escaped += u"&amp;";
        break;
      case u'<':
        escaped += u"&lt;";
        break;
      case u'>':
        escaped += u"&gt;";
        break;
      case u'"':
        escaped += u"&quot;";
        break;
      default:
        escaped.push_back(unit);
    }
  }
  return escaped;
}

}  // namespace quorvantis
