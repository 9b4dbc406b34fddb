// SPDX-License-Identifier: MIT
#include "text/MarkdownEscapes.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kMarkdownSpecial = u"\\`*_[]<>#";
constexpr std::size_t kShortestRule = 3;  ///< underscores in a line of their own are a rule

}  // namespace

std::u16string ProtectMarkdown(std::u16string_view text) {
  std::u16string escaped;
  bool isLineBegin = true;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t end = std::min(text.find_first_not_of(u'_', i), text.size());
    const bool isBlank = end - i >= kShortestRule;
    const bool isSpecial = kMarkdownSpecial.find(text[i]) != kMarkdownSpecial.npos;
    if (isSpecial && (!isBlank || isLineBegin)) escaped.push_back(u'\\');
    const std::size_t length = isBlank ? end - i : 1;
    escaped.append(text, i, length);
    isLineBegin = text[i] == u'\n' || (isLineBegin && text[i] == u' ');
    i += length;
  }
  return escaped;
}

std::u16string UnprotectMarkdown(std::u16string_view text) {
  std::u16string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isEscape = text[i] == u'\\' && i + 1 < text.size() &&
                          kMarkdownSpecial.find(text[i + 1]) != kMarkdownSpecial.npos;
    if (isEscape) ++i;
    plain.push_back(text[i]);
  }
  return plain;
}

}  // namespace quorvantis
