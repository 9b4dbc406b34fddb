// SPDX-License-Identifier: MIT
#include "search/ReplacementText.h"

#include <algorithm>

namespace quorvantis {
namespace {

std::u16string_view GroupOf(const FoundText& found, int group) {
  const int start = found.groups->GroupStart(group);
  if (start < 0) return {};
  const auto begin = static_cast<std::size_t>(start);
  return found.text.substr(begin, static_cast<std::size_t>(found.groups->GroupEnd(group)) - begin);
}

bool IsDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

}  // namespace

ReplacementText::ReplacementText(std::u16string_view text, bool isForPattern) {
  while (!text.empty()) {
    const std::size_t plain = isForPattern ? std::min(text.find(u'\\'), text.size()) : text.size();
    Append(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty()) return;
    const char16_t next = text.size() > 1 ? text[1] : u'\0';
    const bool isKnown = IsDigit(next) || next == u'n' || next == u't' || next == u'\\';
    if (IsDigit(next)) {
      parts_.emplace_back(next - u'0');
    } else {
      Append(next == u'n' ? u"\n" : next == u't' ? u"\t" : u"\\");
    }
    text.remove_prefix(isKnown ? 2 : 1);
  }
}

void ReplacementText::Append(std::u16string_view text) {
  if (!text.empty()) parts_.emplace_back(std::u16string(text));
}

std::optional<int> ReplacementText::UnknownGroup(const TextSearch& search) const {
  for (const auto& part : parts_) {
    const int* group = std::get_if<int>(&part);
    if (group != nullptr && *group > search.Groups()) return *group;
  }
  return std::nullopt;
}

std::u16string ReplacementText::For(const FoundText& found) const {
  std::u16string text;
  for (const auto& part : parts_) {
    const int* group = std::get_if<int>(&part);
    text += group != nullptr ? GroupOf(found, *group) : std::get<std::u16string>(part);
  }
  return text;
}

}  // namespace quorvantis
