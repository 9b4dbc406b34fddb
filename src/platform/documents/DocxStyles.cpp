// SPDX-License-Identifier: MIT
#include "platform/documents/DocxStyles.h"

#include "platform/documents/XmlPart.h"

namespace quorvantis {

NodesById ById(pugi::xml_node parent, std::string_view name, std::string_view attribute) {
  NodesById found;
  for (const pugi::xml_node child : parent.children()) {
    if (LocalName(child) == name) found.emplace(ValueOf(child, attribute), child);
  }
  return found;
}

pugi::xml_node Find(const NodesById& nodes, std::string_view id) {
  const auto found = nodes.find(id);
  return found == nodes.end() ? pugi::xml_node() : found->second;
}

DocxStyles::DocxStyles(pugi::xml_node styles)
    : styles_(ById(styles, "style", "styleId")),
      runDefaults_(ChildOf(ChildOf(ChildOf(styles, "docDefaults"), "rPrDefault"), "rPr")) {
  for (const auto& [id, style] : styles_) {
    const std::string_view isDefault = ValueOf(style, "default");
    if (ValueOf(style, "type") == "paragraph" && (isDefault == "1" || isDefault == "true")) default_ = id;
  }
}

std::string DocxStyles::OfParagraph(pugi::xml_node properties) const {
  const std::string_view named = ValueOf(ChildOf(properties, "pStyle"));
  return named.empty() ? default_ : std::string(named);
}

void DocxStyles::FollowBases(const std::string& id, const std::function<bool(pugi::xml_node)>& visit) const {
  constexpr int kLongestChain = 20;  // a chain may be circular
  pugi::xml_node style = Style(id);
  for (int i = 0; i < kLongestChain && style && !visit(style); ++i)
    style = Style(ValueOf(ChildOf(style, "basedOn")));
}

}  // namespace quorvantis
