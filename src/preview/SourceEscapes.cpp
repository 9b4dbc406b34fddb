// SPDX-License-Identifier: MIT
#include "preview/SourceEscapes.h"

#include "preview/PageAddress.h"

#include <QString>

#include <algorithm>
#include <optional>

namespace quorvantis {
namespace {

using View = std::u16string_view;

/// What precedes a source, by its context.
constexpr View kAttribute = u"src=";
constexpr View kParameter = u"value=";  // for a player that other browsers would choose

/// In a script, "\\" stands for one backslash.
std::u16string Unescaped(View source) {
  std::u16string text;
  for (std::size_t i = 0; i < source.size(); ++i) {
    if (source[i] == u'\\' && i + 1 < source.size()) ++i;
    text.push_back(source[i]);
  }
  return text;
}

/// One place in a page that names a file.
struct Place {
  std::size_t begin;  ///< of the text between the quotes
  std::size_t end;
  View quote;
  const PageSource* source;
};

/// The place whose text begins at `begin`, if it names a file. A quote within a name looks like the one that
/// ends it, so the longest text that is a name counts.
std::optional<Place> PlaceAt(View page, std::size_t begin, View quote, const ComposedPages& pages) {
  const bool inScript = quote.size() > 1;
  const std::size_t last = begin + pages.LongestSource() * (inScript ? 2 : 1);
  std::optional<Place> place;
  for (std::size_t end = page.find(quote, begin); end <= last && end != View::npos;
       end = page.find(quote, end + 1)) {
    const View text = page.substr(begin, end - begin);
    const PageSource* const source = inScript ? pages.FindSource(Unescaped(text)) : pages.FindSource(text);
    if (source != nullptr) place = Place{begin, end, quote, source};
  }
  return place;
}

bool IsLetter(char16_t unit, char16_t lower) {
  return unit == lower || (unit >= u'A' && unit <= u'Z' && unit + 0x20 == lower);
}

/// The first place at or after `from`.
std::optional<Place> NextPlace(View page, std::size_t from, const ComposedPages& pages) {
  for (std::size_t at = page.find(u'=', from); at != View::npos; at = page.find(u'=', at + 1)) {
    const View before = page.substr(from, at + 1 - from);
    const auto isAfter = [&](View word) {
      return before.size() >= word.size() &&
             std::equal(word.begin(), word.end(), before.end() - static_cast<std::ptrdiff_t>(word.size()),
                        [](char16_t lower, char16_t unit) { return IsLetter(unit, lower); });
    };
    if (!isAfter(kAttribute) && !isAfter(kParameter)) continue;
    for (const View quote : {View(u"\""), View(u"\\\"")}) {
      if (!page.substr(at + 1).starts_with(quote)) continue;
      if (const auto place = PlaceAt(page, at + 1 + quote.size(), quote, pages)) return place;
    }
  }
  return std::nullopt;
}

/// For the page scripts. Nothing left in a name has a meaning in a script or an attribute.
std::u16string Attributes(const PageSource& source, View quote) {
  QString name;
  for (const QChar unit : QString::fromStdU16String(source.name)) {
    const bool isPlain = unit.isLetterOrNumber() || unit.isSurrogate() || unit == '.' || unit == ' ';
    name += isPlain ? QString(unit) : QString("&#%1;").arg(unit.unicode());
  }
  std::u16string text = u" data-name=";
  text.append(quote).append(name.toStdU16String()).append(quote);
  return source.muted ? text + u" data-muted" : text;
}

}  // namespace

std::u16string EscapeSources(View page, const ComposedPages& pages) {
  std::u16string result;
  std::size_t copied = 0;
  while (const std::optional<Place> place = NextPlace(page, copied, pages)) {
    const QByteArray address = EscapedPath(place->source->file);
    result += page.substr(copied, place->begin - copied);
    result.append(address.begin(), address.end());
    result += place->quote;
    if (!place->source->name.empty()) result += Attributes(*place->source, place->quote);
    copied = place->end + place->quote.size();
  }
  result += page.substr(copied);
  return result;
}

}  // namespace quorvantis
