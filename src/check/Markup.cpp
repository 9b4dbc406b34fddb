// SPDX-License-Identifier: MIT
#include "check/Markup.h"

#include "check/PageTagReader.h"

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <string>

namespace quorvantis {
namespace {

// Elements with an end.
constexpr std::array<std::string_view, 52> kPaired{
    "a",          "abbr",   "acronym", "address", "article", "b",    "bdi",    "bdo",    "big",
    "blockquote", "button", "center",  "cite",    "code",    "del",  "dfn",    "div",    "dl",
    "em",         "font",   "form",    "h1",      "h2",      "h3",   "h4",     "h5",     "h6",
    "i",          "ins",    "kbd",     "label",   "mark",    "math", "ol",     "pre",    "q",
    "ruby",       "s",      "samp",    "section", "small",   "span", "strike", "strong", "sub",
    "summary",    "sup",    "table",   "tt",      "u",       "ul",   "var"};
constexpr std::array<std::string_view, 32> kSingle{
    "area",   "body",  "br",    "caption", "col",    "colgroup", "dd",    "dt",    "embed", "head", "hr",
    "html",   "img",   "input", "li",      "object", "option",   "p",     "param", "rp",    "rt",   "script",
    "source", "style", "tbody", "td",      "tfoot",  "th",       "thead", "tr",    "track", "wbr"};
// Without their end they hide whatever follows.
constexpr std::array<std::string_view, 12> kHiding{"audio",    "canvas",   "datalist", "details",
                                                   "dialog",   "iframe",   "select",   "svg",
                                                   "template", "textarea", "video",    "xmp"};
// They work on the page as a whole, wherever they stand.
constexpr std::array<std::string_view, 7> kOfPage{"base", "frame",  "frameset", "link",
                                                  "meta", "script", "style"};
constexpr std::array<std::string_view, 11> kEmphasis{"b",  "big", "em",   "font",   "h1", "h2",
                                                     "h3", "i",   "mark", "strong", "u"};

template <std::size_t kSize>
bool Has(const std::array<std::string_view, kSize>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// "<body>" and "<html>" give what they say of themselves to those of the page.
bool ChangesPage(const PageTag& tag) {
  const bool isOfPage = tag.name == "body" || tag.name == "html";
  return !tag.isEnd && (Has(kOfPage, tag.name) || (isOfPage && tag.hasAttributes));
}

/// Browsers take "<b/>" for "<b>", but authors for nothing to close. What hides the rest does so all the
/// same, apart from "<svg/>".
bool NeedsEnd(const PageTag& tag) {
  if (Has(kHiding, tag.name)) return !tag.isEmptyElement || tag.name != "svg";
  return !tag.isEmptyElement && Has(kPaired, tag.name);
}

/// A tag of an element that is known and may stand by itself.
bool IsComplete(const PageTag& tag) {
  return Has(kSingle, tag.name) || Has(kPaired, tag.name) || Has(kHiding, tag.name);
}

/// Tags of one kind of element that are still without their ends.
using OpenTags = std::map<std::string, std::vector<TextSpan>, std::less<>>;

/// Takes what is left open at the end of a text: the first that hides the rest, and the others as unmatched.
void TakeOpenTags(const OpenTags& open, MarkupFaults& faults) {
  for (const auto& [name, tags] : open) {
    if (!Has(kHiding, name)) {
      faults.unmatched.insert(faults.unmatched.end(), tags.begin(), tags.end());
    } else if (!tags.empty() && (!faults.swallowing || tags.front().begin < faults.swallowing->begin)) {
      faults.swallowing = tags.front();
    }
  }
}

}  // namespace

MarkupFaults FindMarkupFaults(std::u16string_view text) {
  MarkupFaults faults;
  OpenTags open;  // of each element by itself: "<b><i></b></i>" does no harm
  PageTagReader tags(text);
  while (const auto tag = tags.Next()) {
    const bool swallows = tags.Swallower() == tag->span;
    if (tag->isClosed && ChangesPage(*tag)) {
      faults.changingPage.push_back(tag->span);
    } else if (!tag->isClosed || (!NeedsEnd(*tag) && !IsComplete(*tag))) {
      if (!swallows) faults.hidden.push_back(tag->span);
    } else if (!tag->isEnd && NeedsEnd(*tag)) {
      open[tag->name].push_back(tag->span);
    } else if (tag->isEnd && NeedsEnd(*tag)) {
      std::vector<TextSpan>& ofName = open[tag->name];
      if (ofName.empty()) faults.unmatched.push_back(tag->span);
      if (!ofName.empty()) ofName.pop_back();
    }
  }
  faults.swallowing = tags.Swallower();
  if (tags.Lost()) faults.hidden.push_back(*tags.Lost());
  TakeOpenTags(open, faults);
  const auto isBefore = [](const TextSpan& a, const TextSpan& b) { return a.begin < b.begin; };
  std::sort(faults.unmatched.begin(), faults.unmatched.end(), isBefore);
  std::sort(faults.hidden.begin(), faults.hidden.end(), isBefore);
  return faults;
}

std::vector<TextSpan> EmphasisedParts(std::u16string_view text) {
  std::vector<TextSpan> parts;
  int depth = 0;
  std::size_t begin = 0;
  PageTagReader tags(text);
  while (const auto tag = tags.Next()) {
    if (!Has(kEmphasis, tag->name)) continue;
    if (!tag->isEnd && depth++ == 0) begin = tag->span.end;
    if (tag->isEnd && depth > 0 && --depth == 0) parts.push_back({begin, tag->span.begin});
  }
  if (depth > 0) parts.push_back({begin, text.size()});
  return parts;
}

}  // namespace quorvantis
