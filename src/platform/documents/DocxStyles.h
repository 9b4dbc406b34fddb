// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace quorvantis {

/// Children of one name, by an attribute; the first if several have the same.
using NodesById = std::map<std::string, pugi::xml_node, std::less<>>;
NodesById ById(pugi::xml_node parent, std::string_view name, std::string_view attribute);

/// An empty node if there is none with that id.
pugi::xml_node Find(const NodesById& nodes, std::string_view id);

/// The styles of a document.
class DocxStyles {
 public:
  /// The root of the styles, which may be empty and must outlive this.
  explicit DocxStyles(pugi::xml_node styles);

  pugi::xml_node Style(std::string_view id) const { return Find(styles_, id); }

  /// The properties of text that no style and no run says anything about; may be empty.
  pugi::xml_node RunDefaults() const { return runDefaults_; }

  /// The id of a paragraph's style, by default that of the default style; may be empty.
  std::string OfParagraph(pugi::xml_node properties) const;

  /// Passes a style, and those it is based on, to `visit` until that returns true.
  void FollowBases(const std::string& id, const std::function<bool(pugi::xml_node)>& visit) const;

 private:
  NodesById styles_;
  pugi::xml_node runDefaults_;
  std::string default_;
};

}  // namespace quorvantis
