// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A response that an item of QTI 2 calls right.
struct QtiAnswer {
  std::string value;
  double share = 1;        ///< of the best one's score
  bool isOfRules = false;  ///< only the rules for scoring have it
};

/// What an item of QTI 2 says that is right, and what it scores.
class QtiKeys {
 public:
  QtiKeys() = default;
  explicit QtiKeys(pugi::xml_node item);

  /// The right values of a response; where none is named, those that earn points. Texts can have several,
  /// even if one is named.
  std::vector<QtiAnswer> Answers(std::string_view response) const;

  /// Values that are no answers, but earn less than one.
  std::vector<std::string> PartlyRight(std::string_view response) const;

  bool TakesSeveral(std::string_view response) const;

  /// "± 0.1 0.1" where the rules for scoring take a number with a tolerance.
  std::vector<std::string> Tolerances() const;

  /// The highest score of the item; nothing where it does not say.
  std::optional<double> Maximum() const;

 private:
  pugi::xml_node Declaration(std::string_view response) const;
  double BestOfRules() const;
  std::optional<double> BestOfMappings() const;
  void AddFromRules(std::string_view response, std::vector<QtiAnswer>& answers) const;

  pugi::xml_node item_;
  pugi::xml_node rules_;
};

}  // namespace quorvantis
