// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

/// What an item of QTI 1.2 says that is right, and what it scores.
class CanvasKeys {
 public:
  /// A value that a pupil's response is compared with, and what it earns, in the unit of the item.
  struct Comparison {
    std::string response;
    std::string value;
    double score = 0;
  };

  explicit CanvasKeys(pugi::xml_node item);

  bool AreEmpty() const { return comparisons_.empty(); }

  /// What a response earns; 0 if it is wrong.
  double ScoreOf(std::string_view response, std::string_view value) const;
  bool IsRight(std::string_view response, std::string_view value) const;

  /// The values that earn something, each once.
  std::vector<Comparison> Rights() const;

  /// Whether the scores of what is chosen add up.
  bool AddUp() const { return addUp_; }

  /// The score of the item; nothing where it only has percentages.
  std::optional<double> Maximum() const;

 private:
  void ReadCondition(pugi::xml_node condition);
  double ScoreOfCondition(pugi::xml_node condition);

  std::vector<Comparison> comparisons_;
  std::map<std::pair<std::string, std::string>, double, std::less<>> scores_;
  double most_ = 0;  ///< that an item can score, as it says itself; 0: it does not
  double best_ = 0;  ///< what a single condition sets
  bool addUp_ = false;
};

}  // namespace quorvantis
