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

ListLabels::List ListLabels::MakeList(pugi::xml_node instance) const {
  const pugi::xml_node abstract = AbstractOf(instance);
  List list{std::string(ValueOf(abstract, "abstractNumId")), {}, {}};
  const auto levelOf = [&list](pugi::xml_node node) -> Level* {
    const int index = NumberOf(node, -1, "ilvl");
    return index >= 0 && index < kLevels ? &list.levels[static_cast<std::size_t>(index)] : nullptr;
  };
  for (const pugi::xml_node node : abstract.children()) {
    Level* const level = LocalName(node) == "lvl" ? levelOf(node) : nullptr;
    if (level != nullptr) *level = {node, NumberOf(ChildOf(node, "start"), 0), false};
  }
  for (const pugi::xml_node node : instance.children()) {
    Level* const level = LocalName(node) == "lvlOverride" ? levelOf(node) : nullptr;
    if (level == nullptr) continue;
    if (const pugi::xml_node own = ChildOf(node, "lvl"))
      *level = {own, NumberOf(ChildOf(own, "start"), 0), true};
    if (const pugi::xml_node start = ChildOf(node, "startOverride")) {
      level->start = NumberOf(start, 1);
      level->restarts = true;
    }
  }
  return list;
}

/// A list may only name a style, whose list it then is.
pugi::xml_node ListLabels::AbstractOf(pugi::xml_node instance) const {
  const pugi::xml_node abstract = Find(abstractLists_, ValueOf(ChildOf(instance, "abstractNumId")));
  const pugi::xml_node link = ChildOf(abstract, "numStyleLink");
  if (!link) return abstract;
  const pugi::xml_node style = Find(styles_, ValueOf(link));
  const pugi::xml_node id = ChildOf(ChildOf(ChildOf(style, "pPr"), "numPr"), "numId");
  const pugi::xml_node other = Find(instances_, ValueOf(id));
  return Find(abstractLists_, ValueOf(ChildOf(other, "abstractNumId")));
}

ListLabels::Place ListLabels::PlaceOf(pugi::xml_node properties) {
  std::string style(ValueOf(ChildOf(properties, "pStyle")));
  if (style.empty()) style = defaultStyle_;
  const pugi::xml_node own = ChildOf(properties, "numPr");
  const pugi::xml_node id = ChildOf(own, "numId");
  if (id) return {std::string(ValueOf(id)), NumberOf(ChildOf(own, "ilvl"), 0)};
  Place place = PlaceOfStyle(style);
  if (const pugi::xml_node level = ChildOf(own, "ilvl"))
    place.level = NumberOf(level, 0);
  else if (!place.list.empty())
    place.level = std::max(place.level, LevelOfStyle(place.list, style));
  return place;
}

ListLabels::Place ListLabels::PlaceOfStyle(std::string style) const {
  for (int i = 0; i < kLongestStyleChain; ++i) {
    const pugi::xml_node definition = Find(styles_, style);
    const pugi::xml_node numbers = ChildOf(ChildOf(definition, "pPr"), "numPr");
    if (const pugi::xml_node id = ChildOf(numbers, "numId")) {
      return {std::string(ValueOf(id)), NumberOf(ChildOf(numbers, "ilvl"), 0)};
    }
    style = ValueOf(ChildOf(definition, "basedOn"));
  }
  return {};
}

/// The level that is bound to the style, as headings are; -1 when none is.
int ListLabels::LevelOfStyle(const std::string& list, const std::string& style) {
  const List* const found = ListOf(list);
  for (int i = 0; found != nullptr && i < kLevels; ++i) {
    const pugi::xml_node bound = ChildOf(found->levels[static_cast<std::size_t>(i)].definition, "pStyle");
    if (bound && ValueOf(bound) == style) return i;
  }
  return -1;
}

void ListLabels::Count(List& list, Counters& counters, int level) const {
  const auto at = static_cast<std::size_t>(level);
  constexpr int kLargest = 1'000'000'000;
  for (std::size_t i = 0; i <= at; ++i) {
    const bool begins = list.levels[i].restarts && !std::exchange(list.begun[i], true);
    if (begins) counters[i] = kNone;
    if (i < at && counters[i] == kNone) counters[i] = list.levels[i].start;
  }
  counters[at] = counters[at] == kNone ? list.levels[at].start : std::min(counters[at] + 1, kLargest);
  for (std::size_t i = at + 1; i < kLevels; ++i) {
    const int restart = NumberOf(ChildOf(list.levels[i].definition, "lvlRestart"), static_cast<int>(i));
    if (restart > level) counters[i] = kNone;
  }
}

std::u16string ListLabels::Label(const List& list, const Counters& counters, int level) const {
  const pugi::xml_node definition = list.levels[static_cast<std::size_t>(level)].definition;
  if (!definition || FormatOf(definition) == "bullet") return {};
  const bool legal = IsOn(ChildOf(definition, "isLgl"));
  const std::u16string pattern = Utf8ToUtf16(ValueOf(ChildOf(definition, "lvlText")));
  std::u16string label;
  for (std::size_t i = 0; i < pattern.size() && label.size() < kLongestLabel; ++i) {
    const bool isNumber =
        pattern[i] == u'%' && i + 1 < pattern.size() && pattern[i + 1] >= u'1' && pattern[i + 1] <= u'9';
    if (!isNumber) {
      label += pattern[i];
      continue;
    }
    const auto which = static_cast<std::size_t>(pattern[++i] - u'1');
    const std::string format = legal ? "decimal" : FormatOf(list.levels[which].definition);
    label += FormatListNumber(counters[which] == kNone ? list.levels[which].start : counters[which], format);
  }
  return label.empty() ? label : label.append(Separator(definition));
}

}  // namespace quorvantis
