// SPDX-License-Identifier: MIT
#include "platform/office/ListLabels.h"

#include "platform/office/NumberFormats.h"
#include "platform/office/XmlPart.h"
#include "text/Utf.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kLongestStyleChain = 20;  // a chain may lead back to where it began
constexpr std::size_t kLongestLabel = 100;
constexpr std::string_view kNoList = "0";
constexpr int kNone = -1;  // a level at which no paragraph has been counted

/// Newer formats hide in an alternative; the name beside it is then one that every reader knows.
std::string FormatOf(pugi::xml_node level) {
  pugi::xml_node format = ChildOf(level, "numFmt");
  if (!format) format = ChildOf(ChildOf(ChildOf(level, "AlternateContent"), "Fallback"), "numFmt");
  return format ? std::string(ValueOf(format)) : "decimal";
}

std::map<std::string, pugi::xml_node, std::less<>> ById(pugi::xml_node parent, std::string_view name,
                                                        std::string_view attribute) {
  std::map<std::string, pugi::xml_node, std::less<>> found;
  for (const pugi::xml_node child : parent.children()) {
    if (LocalName(child) == name) found.emplace(ValueOf(child, attribute), child);
  }
  return found;
}

pugi::xml_node Find(const std::map<std::string, pugi::xml_node, std::less<>>& nodes, std::string_view id) {
  const auto found = nodes.find(id);
  return found == nodes.end() ? pugi::xml_node() : found->second;
}

std::u16string_view Separator(pugi::xml_node level) {
  const std::string_view kind = ValueOf(ChildOf(level, "suff"));
  return kind == "nothing" ? u"" : kind == "space" ? u" " : u"\t";
}

}  // namespace

ListLabels::ListLabels(pugi::xml_node numbering, pugi::xml_node styles)
    : abstractLists_(ById(numbering, "abstractNum", "abstractNumId")),
      instances_(ById(numbering, "num", "numId")),
      styles_(ById(styles, "style", "styleId")) {
  for (const auto& [id, style] : styles_) {
    const std::string_view isDefault = ValueOf(style, "default");
    if (ValueOf(style, "type") == "paragraph" && (isDefault == "1" || isDefault == "true"))
      defaultStyle_ = id;
  }
}

std::u16string ListLabels::Next(pugi::xml_node properties) {
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
  return Label(*list, counters, place.level);
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
    level.restarts = own || start;
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
  level.style = ValueOf(ChildOf(definition, "pStyle"));
  return level;
}

/// Each abstract list is looked into once, however many instances it has.
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

/// A list may only name a style, whose list it then is.
pugi::xml_node ListLabels::FindAbstract(const std::string& id) const {
  const pugi::xml_node abstract = Find(abstractLists_, id);
  const pugi::xml_node link = ChildOf(abstract, "numStyleLink");
  if (!link) return abstract;
  const pugi::xml_node style = Find(styles_, ValueOf(link));
  const pugi::xml_node list = ChildOf(ChildOf(ChildOf(style, "pPr"), "numPr"), "numId");
  const pugi::xml_node other = Find(instances_, ValueOf(list));
  return Find(abstractLists_, ValueOf(ChildOf(other, "abstractNumId")));
}

ListLabels::Place ListLabels::PlaceOf(pugi::xml_node properties) {
  std::string style(ValueOf(ChildOf(properties, "pStyle")));
  if (style.empty()) style = defaultStyle_;
  const pugi::xml_node own = ChildOf(properties, "numPr");
  const pugi::xml_node id = ChildOf(own, "numId");
  if (id) return {std::string(ValueOf(id)), NumberOf(ChildOf(own, "ilvl"), 0)};
  Place place = PlaceOfStyle(style);
  if (const pugi::xml_node level = ChildOf(own, "ilvl")) place.level = NumberOf(level, 0);
  return place;
}

/// Each style is looked into once, however many paragraphs have it.
ListLabels::Place ListLabels::PlaceOfStyle(const std::string& style) {
  const auto known = placesOfStyles_.find(style);
  if (known != placesOfStyles_.end()) return known->second;
  return placesOfStyles_.emplace(style, FindPlaceOfStyle(style)).first->second;
}

ListLabels::Place ListLabels::FindPlaceOfStyle(std::string style) {
  const std::string first = style;
  for (int i = 0; i < kLongestStyleChain; ++i) {
    const pugi::xml_node definition = Find(styles_, style);
    const pugi::xml_node numbers = ChildOf(ChildOf(definition, "pPr"), "numPr");
    if (const pugi::xml_node id = ChildOf(numbers, "numId")) {
      const std::string list(ValueOf(id));
      return {list, std::max(NumberOf(ChildOf(numbers, "ilvl"), 0), LevelOfStyle(list, first))};
    }
    style = ValueOf(ChildOf(definition, "basedOn"));
  }
  return {};
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
