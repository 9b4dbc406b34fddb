// SPDX-License-Identifier: MIT
#include "versions/verify/ReadableBack.h"

#include "text/AsciiCase.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace quorvantis {
namespace {

/// Longer texts go over pages, in UTF-16 units.
constexpr std::size_t kLongest = 2'000;

constexpr std::u16string_view kPlainTags[] = {u"b",     u"i",      u"u",   u"s",  u"em", u"strong",
                                              u"small", u"center", u"sub", u"br", u"p",  u"font"};
constexpr std::u16string_view kPlainEntities[] = {u"&lt;", u"&gt;", u"&amp;", u"&quot;", u"&nbsp;"};

/// Letters that run from right to left, characters that join or turn, and hyphens that may not show.
bool IsTurned(char16_t unit) {
  return unit == 0x00AD || (unit >= 0x0590 && unit <= 0x08FF) || (unit >= 0x200B && unit <= 0x200F) ||
         (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2060 && unit <= 0x206F) ||
         (unit >= 0xFB1D && unit <= 0xFDFF) || (unit >= 0xFE70 && unit <= 0xFEFF);
}

bool IsPlainTag(std::u16string_view rest) {
  const std::size_t end = rest.find(u'>');
  if (end == rest.npos) return false;
  std::u16string_view name = rest.substr(1, end - 1);
  if (name.starts_with(u'/')) name.remove_prefix(1);
  if (name.ends_with(u'/')) name.remove_suffix(1);
  const std::u16string lower = AsciiLower(name.substr(0, name.find(u' ')));
  const bool isKnown = std::find(std::begin(kPlainTags), std::end(kPlainTags), lower) != std::end(kPlainTags);
  return isKnown && AsciiLower(name).find(u"style") == name.npos;
}

bool IsPlainEntity(std::u16string_view rest) {
  const auto begins = [rest](std::u16string_view entity) { return rest.starts_with(entity); };
  const bool isReference = rest.size() > 1 && rest.substr(0, 12).find(u';') != rest.npos;
  return !isReference || std::any_of(std::begin(kPlainEntities), std::end(kPlainEntities), begins);
}

}  // namespace

bool CanBeReadBack(std::u16string_view markup) {
  if (markup.size() > kLongest || std::any_of(markup.begin(), markup.end(), IsTurned)) return false;
  for (std::size_t at = markup.find_first_of(u"<&"); at != markup.npos;
       at = markup.find_first_of(u"<&", at + 1)) {
    const std::u16string_view rest = markup.substr(at);
    if (rest[0] == u'<' ? !IsPlainTag(rest) : !IsPlainEntity(rest)) return false;
  }
  return true;
}

}  // namespace quorvantis
