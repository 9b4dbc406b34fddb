// SPDX-License-Identifier: MIT
#include "platform/documents/ListLabels.h"

#include "platform/documents/NumberFormats.h"
#include "platform/documents/XmlPart.h"
#include "text/Utf.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestLabel = 100;
constexpr std::string_view kNoList = "0";
constexpr int kNone = -1;  // a level at which no paragraph has been counted

/// Newer formats are in an alternative; the name beside it is then one that every reader knows.
std::string FormatOf(pugi::xml_node level) {
  pugi::xml_node format = ChildOf(level, "numFmt");
  if (!format) format = ChildOf(ChildOf(ChildOf(level, "AlternateContent"), "Fallback"), "numFmt");
  return format ? std::string(ValueOf(format)) : "decimal";
}

std::u16string_view Separator(pugi::xml_node level) {
  const std::string_view kind = ValueOf(ChildOf(level, "suff"));
  return kind == "nothing" ? u"" : kind == "space" ? u" " : u"\t";
}

}  // namespace

ListLabels::ListLabels(pugi::xml_node numbering, const DocxStyles& styles)
    : abstractLists_(ById(numbering, "abstractNum", "abstractNumId")),
      instances_(ById(numbering, "num", "numId")),
      styles_(styles) {}

ListLabel ListLabels::Next(pugi::xml_node properties) {
  const Place place = PlaceOf(properties);
  if (place.level < 0 || place.level >= kLevels) return {};
  List* const list = ListOf(place.list);
  if (list == nullptr) return {};
  const auto fresh = [] {
    Counters none{};
    none.fill(kNone);
    return none;
  };
  Counters& counters = counters_.try_emplace(list->counters, fresh()).first->second;
  Count(*list, counters, place.level);
  return {Label(*list, counters, place.level), list->levels[static_cast<std::size_t>(place.level)].look};
}

ListLabels::List* ListLabels::ListOf(const std::string& id) {
  const auto known = lists_.find(id);
  if (known != lists_.end()) return &known->second;
  const pugi::xml_node instance = id == kNoList ? pugi::xml_node() : Find(instances_, id);
  return instance ? &lists_.emplace(id, MakeList(instance)).first->second : nullptr;
}

ListLabels::List ListLabels::MakeList(pugi::xml_node instance) {
  List list = AbstractOf(instance);
  for (const pugi::xml_node node : instance.children()) {
    const int index = LocalName(node) == "lvlOverride" ? NumberOf(node, -1, "ilvl") : -1;
    if (index < 0 || index >= kLevels) continue;
    Level& level = list.levels[static_cast<std::size_t>(index)];
    const pugi::xml_node own = ChildOf(node, "lvl");
    const pugi::xml_node start = ChildOf(node, "startOverride");
    if (own) level = MakeLevel(own, index);
    if (start) level.start = NumberOf(start, 1);
    level.restarts = !start.empty();  // a different look alone continues the count
  }
  return list;
}

ListLabels::Level ListLabels::MakeLevel(pugi::xml_node definition, int index) {
  Level level;
  level.isDefined = true;
  level.start = NumberOf(ChildOf(definition, "start"), 0);
  level.restart = NumberOf(ChildOf(definition, "lvlRestart"), index);
  level.isLegal = IsOn(ChildOf(definition, "isLgl"));
  level.format = FormatOf(definition);
  level.pattern = Utf8ToUtf16(ValueOf(ChildOf(definition, "lvlText"))).substr(0, kLongestLabel);
  level.separator = Separator(definition);
  level.look = ChildOf(definition, "rPr");
  level.style = ValueOf(ChildOf(definition, "pStyle"));
  return level;
}

/// Each abstract list is evaluated once, however many instances it has.
const ListLabels::List& ListLabels::AbstractOf(pugi::xml_node instance) {
  const std::string id(ValueOf(ChildOf(instance, "abstractNumId")));
  const auto known = abstracts_.find(id);
  if (known != abstracts_.end()) return known->second;
  const pugi::xml_node abstract = FindAbstract(id);
  List list{std::string(ValueOf(abstract, "abstractNumId")), {}, {}};
  for (const pugi::xml_node node : abstract.children()) {
    const int index = LocalName(node) == "lvl" ? NumberOf(node, -1, "ilvl") : -1;
    if (index >= 0 && index < kLevels) list.levels[static_cast<std::size_t>(index)] = MakeLevel(node, index);
  }
  return abstracts_.emplace(id, std::move(list)).first->second;
}

/// A list may just name a style, and is then the list of that style.
pugi::xml_node ListLabels::FindAbstract(const std::string& id) const {
  const pugi::xml_node abstract = Find(abstractLists_, id);
  const pugi::xml_node link = ChildOf(abstract, "numStyleLink");
  if (!link) return abstract;
  const pugi::xml_node style = styles_.Style(ValueOf(link));
  const pugi::xml_node list = ChildOf(ChildOf(ChildOf(style, "pPr"), "numPr"), "numId");
  const pugi::xml_node other = Find(instances_, ValueOf(list));
  return Find(abstractLists_, ValueOf(ChildOf(other, "abstractNumId")));
}

ListLabels::Place ListLabels::PlaceOf(pugi::xml_node properties) {
  const pugi::xml_node own = ChildOf(properties, "numPr");
  const pugi::xml_node id = ChildOf(own, "numId");
  if (id) return {std::string(ValueOf(id)), NumberOf(ChildOf(own, "ilvl"), 0)};
  Place place = PlaceOfStyle(styles_.OfParagraph(properties));
  if (const pugi::xml_node level = ChildOf(own, "ilvl")) place.level = NumberOf(level, 0);
  return place;
}

/// Each style is evaluated once, however many paragraphs have it.
ListLabels::Place ListLabels::PlaceOfStyle(const std::string& style) {
  const auto known = placesOfStyles_.find(style);
  if (known != placesOfStyles_.end()) return known->second;
  return placesOfStyles_.emplace(style, FindPlaceOfStyle(style)).first->second;
}

/// A style may set only the level, and leave the list to one that it is based on.
ListLabels::Place ListLabels::FindPlaceOfStyle(const std::string& style) {
  Place place;
  styles_.FollowBases(style, [&place](pugi::xml_node definition) {
    const pugi::xml_node numbers = ChildOf(ChildOf(definition, "pPr"), "numPr");
    if (place.level < 0) place.level = NumberOf(ChildOf(numbers, "ilvl"), -1);
    place.list = ValueOf(ChildOf(numbers, "numId"));
    return !place.list.empty();
  });
  if (place.list.empty()) return {};
  place.level = std::max({place.level, LevelOfStyle(place.list, style), 0});
  return place;
}

/// The level that is bound to the style, as headings are; -1 when none is.
int ListLabels::LevelOfStyle(const std::string& list, const std::string& style) {
  const List* const found = ListOf(list);
  for (int i = 0; found != nullptr && i < kLevels; ++i) {
    if (found->levels[static_cast<std::size_t>(i)].style == style) return i;
  }
  return -1;
}

void ListLabels::Count(List& list, Counters& counters, int level) {
  const auto at = static_cast<std::size_t>(level);
  constexpr int kLargest = 1'000'000'000;
  for (std::size_t i = 0; i <= at; ++i) {
    const bool begins = list.levels[i].restarts && !std::exchange(list.begun[i], true);
    if (begins) counters[i] = kNone;
    if (i < at && counters[i] == kNone) counters[i] = list.levels[i].start;
  }
  counters[at] = counters[at] == kNone ? list.levels[at].start : std::min(counters[at] + 1, kLargest);
  for (std::size_t i = at + 1; i < kLevels; ++i) {
    if (list.levels[i].restart > level) counters[i] = kNone;
  }
}

std::u16string ListLabels::Label(const List& list, const Counters& counters, int level) {
  const Level& own = list.levels[static_cast<std::size_t>(level)];
  if (!own.isDefined || own.format == "bullet") return {};
  std::u16string label;
  for (std::size_t i = 0; i < own.pattern.size() && label.size() < kLongestLabel; ++i) {
    const char16_t unit = own.pattern[i];
    const char16_t next = i + 1 < own.pattern.size() ? own.pattern[i + 1] : u' ';
    if (unit != u'%' || next < u'1' || next > u'9') {
      label += unit;
      continue;
    }
    const auto which = static_cast<std::size_t>(own.pattern[++i] - u'1');
    const Level& shown = list.levels[which];
    const int number = counters[which] == kNone ? shown.start : counters[which];
    label += FormatListNumber(number, own.isLegal ? "decimal" : std::string_view(shown.format));
  }
  return label.empty() ? label : label.append(own.separator);
}

}  // namespace quorvantis
