// SPDX-License-Identifier: MIT
#include "preview/SourceEscapes.h"

#include "preview/PageAddress.h"
#include "text/PathText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestSource = 4096;
constexpr std::u16string_view kAttribute = u"src=";

bool IsPlain(char16_t unit) {
  if (unit >= 0xD800 && unit <= 0xDFFF) return false;  // perhaps a byte that is no UTF-8, see PathToText
  return unit > 0x20 && unit != u'%' && unit != u'#' && unit != u'?' && unit != u'&' && unit != u'\\';
}

bool SameLetter(char16_t a, char16_t lower) {
  return a == lower || (a >= u'A' && a <= u'Z' && a + 0x20 == lower);
}

/// In a script, "\\" stands for one backslash.
std::u16string Unescaped(std::u16string_view source) {
  std::u16string text;
  for (std::size_t i = 0; i < source.size(); ++i) {
    if (source[i] == u'\\' && i + 1 < source.size()) ++i;
    text.push_back(source[i]);
  }
  return text;
}

/// The value of one attribute: `page` from `begin` to `end`.
struct Source {
  std::size_t begin;
  std::size_t end;
  bool inScript;
};

/// The value that begins at or after `from`; `begin` is past the end when there is none.
Source NextSource(std::u16string_view page, std::size_t from) {
  while (true) {
    const auto at = std::search(page.begin() + static_cast<std::ptrdiff_t>(from), page.end(),
                                kAttribute.begin(), kAttribute.end(), SameLetter);
    if (at == page.end()) return {page.size() + 1, 0, false};
    std::size_t begin = static_cast<std::size_t>(at - page.begin()) + kAttribute.size();
    from = begin;
    const bool inScript = page.substr(begin, 2) == u"\\\"";
    if (!inScript && page.substr(begin, 1) != u"\"") continue;
    begin += inScript ? 2 : 1;
    const std::size_t end = page.find(inScript ? u"\\\"" : u"\"", begin);
    if (end != std::u16string_view::npos && end - begin <= kLongestSource) return {begin, end, inScript};
  }
}

}  // namespace

std::u16string EscapeSources(std::u16string_view page,
                             const std::function<bool(const std::filesystem::path&)>& isFile) {
  std::u16string result;
  std::size_t copied = 0;
  for (Source source = NextSource(page, 0); source.begin <= page.size();
       source = NextSource(page, source.end)) {
    const std::u16string_view text = page.substr(source.begin, source.end - source.begin);
    if (std::all_of(text.begin(), text.end(), IsPlain)) continue;
    const std::filesystem::path file = TextToPath(source.inScript ? Unescaped(text) : std::u16string(text));
    if (!isFile(file)) continue;
    const QByteArray escaped = EscapedPath(file);
    result += page.substr(copied, source.begin - copied);
    result.append(escaped.begin(), escaped.end());
    copied = source.end;
  }
  result += page.substr(copied);
  return result;
}

}  // namespace quorvantis
