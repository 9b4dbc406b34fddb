// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <map>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace quorvantis {

/// Counts the automatic numbers of paragraphs, which stand in no text.
class ListLabels {
 public:
  static constexpr int kLevels = 9;

  /// The roots of the lists and of the styles of a document, either of which may be empty. They outlive this.
  ListLabels(pugi::xml_node numbering, pugi::xml_node styles);

  /// The label of the next paragraph, with the tab or the blank behind it; empty when it has none.
  /// `properties` are those of the paragraph and may be empty. Bullets are no labels.
  std::u16string Next(pugi::xml_node properties);

 private:
  using Counters = std::array<int, kLevels>;

  /// How a list instance counts, put together from the list and what the instance says otherwise.
  struct Level {
    pugi::xml_node definition;
    int start = 1;
    bool restarts = false;  ///< the instance begins anew
  };
  struct List {
    std::string counters;  ///< whose counters it shares: those of the abstract list
    std::array<Level, kLevels> levels;
    std::array<bool, kLevels> begun{};
  };
  struct Place {
    std::string list;
    int level = -1;
  };

  List* ListOf(const std::string& id);
  List MakeList(pugi::xml_node instance) const;
  pugi::xml_node AbstractOf(pugi::xml_node instance) const;
  Place PlaceOf(pugi::xml_node properties);
  Place PlaceOfStyle(std::string style) const;
  int LevelOfStyle(const std::string& list, const std::string& style);
  void Count(List& list, Counters& counters, int level) const;
  std::u16string Label(const List& list, const Counters& counters, int level) const;

  std::map<std::string, pugi::xml_node, std::less<>> abstractLists_;
  std::map<std::string, pugi::xml_node, std::less<>> instances_;
  std::map<std::string, pugi::xml_node, std::less<>> styles_;
  std::string defaultStyle_;
  std::map<std::string, List, std::less<>> lists_;
  std::map<std::string, Counters, std::less<>> counters_;
};

}  // namespace quorvantis
