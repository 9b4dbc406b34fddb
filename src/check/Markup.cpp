// SPDX-License-Identifier: MIT
#include "check/Markup.h"

#include "text/AsciiCase.h"

#include <algorithm>
#include <array>
#include <string>

namespace quorvantis {
namespace {

constexpr std::array<std::u16string_view, 58> kPaired{
    u"a",       u"abbr",    u"acronym",    u"address", u"article", u"audio",    u"b",      u"bdi",
    u"bdo",     u"big",     u"blockquote", u"button",  u"center",  u"cite",     u"code",   u"del",
    u"details", u"dfn",     u"div",        u"dl",      u"em",      u"font",     u"form",   u"h1",
    u"h2",      u"h3",      u"h4",         u"h5",      u"h6",      u"i",        u"ins",    u"kbd",
    u"label",   u"mark",    u"math",       u"ol",      u"pre",     u"q",        u"ruby",   u"s",
    u"samp",    u"section", u"select",     u"small",   u"span",    u"strike",   u"strong", u"style",
    u"sub",     u"summary", u"sup",        u"svg",     u"table",   u"textarea", u"tt",     u"u",
    u"ul",      u"var"};
constexpr std::array<std::u16string_view, 36> kSingle{
    u"area",   u"body",   u"br",    u"caption", u"col", u"colgroup", u"dd",     u"dt",    u"embed",
    u"head",   u"hr",     u"html",  u"iframe",  u"img", u"input",    u"li",     u"link",  u"meta",
    u"object", u"option", u"p",     u"param",   u"rp",  u"rt",       u"source", u"tbody", u"td",
    u"tfoot",  u"th",     u"thead", u"title",   u"tr",  u"track",    u"video",  u"wbr",   u"xmp"};
constexpr std::array<std::u16string_view, 11> kEmphasis{u"b",  u"big", u"em",   u"font",   u"h1", u"h2",
                                                        u"h3", u"i",   u"mark", u"strong", u"u"};

template <std::size_t kSize>
bool Has(const std::array<std::u16string_view, kSize>& names, std::u16string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

struct Tag {
  TextSpan span;
  std::u16string name;  ///< in lower case
  bool isEnd = false;
  bool isEmptyElement = false;  ///< "<b/>", which browsers take for "<b>", but authors for nothing to close
};

bool IsAsciiLetter(char16_t unit) {
  return AsciiLower(unit) >= u'a' && AsciiLower(unit) <= u'z';
}

/// Goes through what a browser takes for tags.
class TagReader {
 public:
  explicit TagReader(std::u16string_view text) : text_(text) {}

  bool Next(Tag& tag) {
    for (at_ = text_.find(u'<', at_); at_ < text_.size(); at_ = text_.find(u'<', at_ + 1)) {
      if (!BeginsTag(at_)) continue;
      tag = TagAt(at_);
      at_ = tag.span.end;
      return true;
    }
    return false;
  }

 private:
  bool BeginsTag(std::size_t at) const {
    const std::size_t name = at + (text_.substr(at).starts_with(u"</") ? 2 : 1);
    return name < text_.size() && IsAsciiLetter(text_[name]);
  }

  Tag TagAt(std::size_t begin) const {
    const bool isEnd = text_[begin + 1] == u'/';
    const std::size_t nameBegin = begin + (isEnd ? 2 : 1);
    const std::size_t nameEnd = std::min(text_.find_first_of(u" \t\r\n/>", nameBegin), text_.size());
    const std::size_t close = std::min(text_.find(u'>', nameEnd), text_.size());
    constexpr std::size_t kLongestName = 16;
    const std::size_t length = std::min(nameEnd - nameBegin, kLongestName);
    return {{begin, std::min(close + 1, text_.size())},
            AsciiLower(text_.substr(nameBegin, length)),
            isEnd,
            close < text_.size() && text_[close - 1] == u'/'};
  }

  std::u16string_view text_;
  std::size_t at_ = 0;
};

}  // namespace

MarkupFaults FindMarkupFaults(std::u16string_view text) {
  MarkupFaults faults;
  std::array<std::vector<TextSpan>, kPaired.size()> open;  // of each element: "<b><i></b></i>" does no harm
  TagReader tags(text);
  for (Tag tag; tags.Next(tag);) {
    const bool isClosed = text[tag.span.end - 1] == u'>';
    const auto paired = std::find(kPaired.begin(), kPaired.end(), tag.name);
    if (!isClosed || (paired == kPaired.end() && !Has(kSingle, tag.name))) {
      faults.hidden.push_back(tag.span);
    } else if (paired != kPaired.end() && !tag.isEmptyElement) {
      std::vector<TextSpan>& ofName = open[static_cast<std::size_t>(paired - kPaired.begin())];
      if (!tag.isEnd) {
        ofName.push_back(tag.span);
      } else if (ofName.empty()) {
        faults.unmatched.push_back(tag.span);
      } else {
        ofName.pop_back();
      }
    }
  }
  for (const auto& ofName : open)
    faults.unmatched.insert(faults.unmatched.end(), ofName.begin(), ofName.end());
  const auto isBefore = [](const TextSpan& a, const TextSpan& b) { return a.begin < b.begin; };
  std::sort(faults.unmatched.begin(), faults.unmatched.end(), isBefore);
  return faults;
}

std::vector<TextSpan> EmphasisedParts(std::u16string_view text) {
  std::vector<TextSpan> parts;
  int depth = 0;
  std::size_t begin = 0;
  TagReader tags(text);
  for (Tag tag; tags.Next(tag);) {
    if (!Has(kEmphasis, tag.name)) continue;
    if (!tag.isEnd && depth++ == 0) begin = tag.span.end;
    if (tag.isEnd && depth > 0 && --depth == 0) parts.push_back({begin, tag.span.begin});
  }
  if (depth > 0) parts.push_back({begin, text.size()});
  return parts;
}

}  // namespace quorvantis
