// SPDX-License-Identifier: MIT
#pragma once

#include "platform/documents/DocxStyles.h"

#include <array>
#include <map>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace quorvantis {

/// An automatic number.
struct ListLabel {
  std::u16string text{};        ///< with the tab or blank after it
  pugi::xml_node properties{};  ///< how its list wants it to look; may be empty
};

/// Counts the automatic numbers of paragraphs, which are not part of the text.
class ListLabels {
 public:
  static constexpr int kLevels = 9;

  /// The root of the lists, which may be empty, and the styles of a document. Both must outlive this.
  ListLabels(pugi::xml_node numbering, const DocxStyles& styles);

  /// The label of the next paragraph; its text is empty if it has none. `properties` are
  /// those of the paragraph; they may be empty. Bullets are not labels.
  ListLabel Next(pugi::xml_node properties);

 private:
  using Counters = std::array<int, kLevels>;

  /// How a list instance counts: the list's settings, with what the instance overrides.
  struct Level {
    bool isDefined = false;
    int start = 1;
    int restart = 0;       ///< restarts after paragraphs of levels below this one
    bool isLegal = false;  ///< all numbers of the label are decimal
    std::string format = "decimal";
    std::u16string pattern;
    std::u16string_view separator;
    pugi::xml_node look;
    std::string style;      ///< bound to this level; may be empty
    bool restarts = false;  ///< the instance restarts
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
  List MakeList(pugi::xml_node instance);
  static Level MakeLevel(pugi::xml_node definition, int index);
  const List& AbstractOf(pugi::xml_node instance);
  pugi::xml_node FindAbstract(const std::string& id) const;
  Place PlaceOf(pugi::xml_node properties);
  Place PlaceOfStyle(const std::string& style);
  Place FindPlaceOfStyle(const std::string& style);
  int LevelOfStyle(const std::string& list, const std::string& style);
  static void Count(List& list, Counters& counters, int level);
  static std::u16string Label(const List& list, const Counters& counters, int level);

  NodesById abstractLists_;
  NodesById instances_;
  const DocxStyles& styles_;
  std::map<std::string, Place, std::less<>> placesOfStyles_;
  std::map<std::string, List, std::less<>> abstracts_;  ///< as their instances inherit them
  std::map<std::string, List, std::less<>> lists_;
  std::map<std::string, Counters, std::less<>> counters_;
};

}  // namespace quorvantis
