// SPDX-License-Identifier: MIT
#include "exchange/markup/MarkupTags.h"

#include "text/AsciiCase.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace quorvantis {
namespace {

// Sorted by name.
// clang-format off
constexpr MarkupTag kTags[] = {
    {u"a", TagRole::Link}, {u"abbr"}, {u"acronym"}, {u"address", TagRole::Block},
    {u"applet", TagRole::Removed, true}, {u"area"}, {u"article", TagRole::Block}, {u"aside", TagRole::Block},
    {u"audio", TagRole::Media}, {u"b", TagRole::Kept, false, true}, {u"base", TagRole::Form, true}, {u"bdi"}, {u"bdo"},
    {u"big", TagRole::Kept, false, true}, {u"blink", TagRole::Transparent, true},
    {u"blockquote", TagRole::Block, true}, {u"body"}, {u"br", TagRole::Break}, {u"button", TagRole::Form, true},
    {u"canvas", TagRole::Removed, true}, {u"caption", TagRole::Block}, {u"center", TagRole::Block, true},
    {u"cite", TagRole::Kept, false, true}, {u"code", TagRole::Kept, false, true}, {u"col"}, {u"colgroup"},
    {u"dd", TagRole::Block, true}, {u"del", TagRole::Kept}, {u"details", TagRole::Block, true},
    {u"dfn"}, {u"div", TagRole::Block}, {u"dl", TagRole::Block, true}, {u"dt", TagRole::Block, true},
    {u"em", TagRole::Kept, false, true}, {u"embed", TagRole::Form, true}, {u"fieldset", TagRole::Block},
    {u"figcaption", TagRole::Block}, {u"figure", TagRole::Block}, {u"font", TagRole::Transparent, true},
    {u"footer", TagRole::Block}, {u"form", TagRole::Form, true}, {u"frame", TagRole::Form, true},
    {u"frameset", TagRole::Form, true}, {u"h1", TagRole::Block, true}, {u"h2", TagRole::Block, true},
    {u"h3", TagRole::Block, true}, {u"h4", TagRole::Block, true}, {u"h5", TagRole::Block, true},
    {u"h6", TagRole::Block, true}, {u"head"}, {u"header", TagRole::Block}, {u"hr", TagRole::Block, true}, {u"html"},
    {u"i", TagRole::Kept, false, true}, {u"iframe", TagRole::Removed, true}, {u"img", TagRole::Picture},
    {u"input", TagRole::Form, true}, {u"ins", TagRole::Kept}, {u"kbd", TagRole::Kept, false, true}, {u"label"},
    {u"legend", TagRole::Block}, {u"li", TagRole::Block, true}, {u"link", TagRole::Form, true}, {u"main", TagRole::Block},
    {u"map"}, {u"mark", TagRole::Kept}, {u"marquee", TagRole::Transparent, true}, {u"math", TagRole::Transparent, true},
    {u"menu", TagRole::Block, true}, {u"meta", TagRole::Form, true}, {u"nav", TagRole::Block}, {u"nobr"},
    {u"noembed", TagRole::Removed, true}, {u"noframes", TagRole::Removed, true}, {u"noscript", TagRole::Removed, true},
    {u"object", TagRole::Removed, true}, {u"ol", TagRole::Block, true}, {u"option", TagRole::Form, true},
    {u"p", TagRole::Block}, {u"param", TagRole::Form, true}, {u"picture"}, {u"plaintext", TagRole::Form, true},
    {u"pre", TagRole::Block}, {u"q", TagRole::Kept, false, true}, {u"rp"}, {u"rt"}, {u"ruby"},
    {u"s", TagRole::Kept}, {u"samp", TagRole::Kept, false, true}, {u"script", TagRole::Removed, true},
    {u"section", TagRole::Block}, {u"select", TagRole::Form, true}, {u"small", TagRole::Kept, false, true},
    {u"source", TagRole::Media}, {u"span"}, {u"strike", TagRole::Kept}, {u"strong", TagRole::Kept, false, true},
    {u"style", TagRole::Removed, true}, {u"sub", TagRole::Kept, false, true}, {u"summary", TagRole::Block},
    {u"sup", TagRole::Kept, false, true}, {u"svg", TagRole::Removed, true}, {u"table", TagRole::Block, true},
    {u"tbody"}, {u"td", TagRole::Cell}, {u"template", TagRole::Removed, true}, {u"textarea", TagRole::Form, true},
    {u"tfoot"}, {u"th", TagRole::Cell}, {u"thead"}, {u"time"}, {u"title", TagRole::Removed}, {u"tr", TagRole::Block},
    {u"track"}, {u"tt", TagRole::Kept, false, true}, {u"u", TagRole::Kept}, {u"ul", TagRole::Block, true},
    {u"var", TagRole::Kept, false, true}, {u"video", TagRole::Media}, {u"wbr"}, {u"xmp", TagRole::Form, true},
};
// clang-format on

static_assert(std::is_sorted(std::begin(kTags), std::end(kTags),
                             [](const MarkupTag& a, const MarkupTag& b) { return a.name < b.name; }));

}  // namespace

const MarkupTag* FindTag(std::u16string_view name) {
  const std::u16string lower = AsciiLower(name);
  const auto* const tag =
      std::lower_bound(std::begin(kTags), std::end(kTags), lower,
                       [](const MarkupTag& row, const std::u16string& wanted) { return row.name < wanted; });
  return tag != std::end(kTags) && tag->name == lower ? tag : nullptr;
}

}  // namespace quorvantis
