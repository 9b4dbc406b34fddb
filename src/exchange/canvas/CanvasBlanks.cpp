// SPDX-License-Identifier: MIT
#include "exchange/canvas/CanvasBlanks.h"

#include "exchange/form/Blanks.h"

#include <algorithm>
#include <deque>
#include <map>

namespace quorvantis {
namespace {

/// The places of all names in brackets, brackets included, in order.
std::map<std::u16string, std::deque<TextSpan>> NamesIn(std::u16string_view text) {
  std::map<std::u16string, std::deque<TextSpan>> names;
  std::size_t begin = text.npos;
  for (std::size_t at = text.find_first_of(u"[]"); at != text.npos; at = text.find_first_of(u"[]", at + 1)) {
    if (text[at] == u']' && begin != text.npos)
      names[std::u16string(text.substr(begin + 1, at - begin - 1))].push_back({begin, at + 1});
    begin = text[at] == u'[' ? at : text.npos;
  }
  return names;
}

struct PlacedBlank {
  TextSpan place;
  CanvasBlank blank;
};

std::u16string BlankText(const CanvasBlank& blank) {
  std::u16string text(kBlank);
  if (!blank.choices.empty()) text.append(u" (").append(blank.choices).append(u")");
  return text;
}

}  // namespace

std::u16string WithBlanksOfSpans(std::u16string_view html) {
  const std::u16string begin = u"<span class=\"" + std::u16string(kBlankClass);
  constexpr std::u16string_view kEnd = u"]</span>";
  std::u16string text;
  for (std::size_t at = 0; at < html.size();) {
    const std::size_t span = std::min(html.find(begin, at), html.size());
    const std::size_t bracket = html.find(u"\">[", span);
    const std::size_t end = bracket == html.npos ? bracket : html.find(kEnd, bracket);
    text += html.substr(at, span - at);
    if (end == html.npos) return text.append(html.substr(span));
    text += BlankOfClass(html.substr(span + begin.size() - kBlankClass.size(), bracket - span));
    at = end + kEnd.size();
  }
  return text;
}

void PlaceBlanks(std::vector<CanvasBlank> blanks, ExchangedQuestion& question) {
  auto names = NamesIn(question.text);
  const bool hasBlanks = !BlanksIn(question.text).empty();
  std::vector<PlacedBlank> placed;
  placed.reserve(blanks.size());
  for (CanvasBlank& blank : blanks) {
    TextSpan place{question.text.size(), question.text.size()};
    auto& places = names[blank.name];
    if (!places.empty()) {
      place = places.front();
      places.pop_front();
    }
    placed.push_back({place, std::move(blank)});
  }
  std::ranges::stable_sort(placed, {}, [](const PlacedBlank& one) { return one.place.begin; });
  std::u16string text;
  std::size_t at = 0;
  for (PlacedBlank& one : placed) {
    text.append(question.text, at, one.place.begin - at);
    at = one.place.end;
    const bool isNamed = one.place.end > one.place.begin;
    const bool isThere = !isNamed && hasBlanks && one.blank.choices.empty();
    if (!isThere) text.append(isNamed ? u"" : u" ").append(BlankText(one.blank));
    question.blanks.push_back(std::move(one.blank.answers));
  }
  question.text = text.append(question.text, at);
}

}  // namespace quorvantis
