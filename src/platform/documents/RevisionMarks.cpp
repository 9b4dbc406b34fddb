// SPDX-License-Identifier: MIT
#include "platform/documents/RevisionMarks.h"

#include "platform/documents/XmlPart.h"

#include <algorithm>
#include <string_view>

namespace quorvantis {

bool IsDeletion(pugi::xml_node element) {
  const std::string_view name = LocalName(element);
  return name == "del" || name == "moveFrom" || name == "cellDel";
}

bool HasDeletion(pugi::xml_node properties) {
  return std::ranges::any_of(properties.children(), IsDeletion);
}

}  // namespace quorvantis
