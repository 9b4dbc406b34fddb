// SPDX-License-Identifier: MIT
// Writing and reading XML.
#pragma once

#include "exchange/form/Format.h"

#include <initializer_list>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

inline constexpr std::string_view kXmlHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

using XmlAttributes = std::initializer_list<std::pair<std::string_view, std::string>>;

/// Composes elements, each on a line of its own, indented.
class XmlWriter {
 public:
  explicit XmlWriter(std::string& xml) : xml_(xml) {}

  void Begin(std::string_view name, XmlAttributes attributes = {});
  void End(std::string_view name);

  /// An element without content.
  void Empty(std::string_view name, XmlAttributes attributes = {});

  /// An element with characters.
  void Text(std::string_view name, std::string_view characters, XmlAttributes attributes = {});

  /// An element whose content is XML already.
  void Raw(std::string_view name, std::string_view xml, XmlAttributes attributes = {});

 private:
  void OpenTag(std::string_view name, XmlAttributes attributes, std::string_view end);

  std::string& xml_;
  std::size_t depth_ = 0;
};

std::string EscapedXml(std::string_view utf8);

/// In a section that needs no escapes.
std::string CdataOf(std::string_view characters);

/// UTF-8 of a text.
std::u16string TextOf(std::string_view utf8);

/// All characters below an element, those of inner elements included; as XML again if it has any.
std::u16string ContentOf(pugi::xml_node element);

/// The characters of the first child of that name; its prefix does not count.
std::u16string ContentOfChild(pugi::xml_node parent, std::string_view name);

/// The children of that name, in order.
std::vector<pugi::xml_node> ChildrenOf(pugi::xml_node parent, std::string_view name);

/// All elements below `parent` with one of the names, in the order of the document; none of those inside
/// another one of them.
std::vector<pugi::xml_node> ElementsBelow(pugi::xml_node parent,
                                          std::initializer_list<std::string_view> names);

/// The number in an attribute or text; `otherwise` if it is none.
double NumberIn(std::string_view text, double otherwise);

/// Parses XML, unless it would take more memory than any real file does or is nested too deeply. False if it
/// is none, which is told. Entities that the file declares are never expanded; that is told.
bool ParseForeignXml(std::string bytes, pugi::xml_document& document, ExchangeNotes& notes);

}  // namespace quorvantis
