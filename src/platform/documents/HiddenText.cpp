// SPDX-License-Identifier: MIT
#include "platform/documents/HiddenText.h"

#include "platform/documents/XmlPart.h"

namespace quorvantis {

/// The two styles toggle each other.
bool HiddenText::IsHidden(pugi::xml_node properties, const std::string& paragraphStyle) {
  if (const pugi::xml_node own = ChildOf(properties, "vanish")) return IsOn(own);
  const std::string characterStyle(ValueOf(ChildOf(properties, "rStyle")));
  return IsHiddenBy(paragraphStyle) != IsHiddenBy(characterStyle);
}

/// Each style is evaluated once, however many runs have it.
bool HiddenText::IsHiddenBy(const std::string& style) {
  if (style.empty()) return false;
  const auto known = known_.find(style);
  if (known != known_.end()) return known->second;
  bool isHidden = false;
  styles_.FollowBases(style, [&isHidden](pugi::xml_node definition) {
    const pugi::xml_node vanish = ChildOf(ChildOf(definition, "rPr"), "vanish");
    isHidden = IsOn(vanish);
    return !vanish.empty();
  });
  return known_.emplace(style, isHidden).first->second;
}

}  // namespace quorvantis
