// SPDX-License-Identifier: MIT
// XML of a package. Names are compared without their prefix: prefixes are up to the program that wrote the
// file, and none of the names that matter here occurs in two namespaces.
#pragma once

#include "platform/WordDocuments.h"
#include "platform/documents/ZipPackage.h"

#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace quorvantis {

/// Parses a part into `document`, unless the tree would take more memory than any real document does.
WordResult ParseXml(PackagePart part, pugi::xml_document& document);

std::string_view LocalName(pugi::xml_node node);

/// The first child of that name, or an empty node.
pugi::xml_node ChildOf(pugi::xml_node node, std::string_view localName);

/// An attribute's value; empty when it is missing.
std::string_view ValueOf(pugi::xml_node node, std::string_view localName = "val");

/// A small whole number; `otherwise` if the attribute is missing or not such a number.
int NumberOf(pugi::xml_node node, int otherwise, std::string_view localName = "val");

/// Whether a property such as `<w:vanish/>` is present and not turned off.
bool IsOn(pugi::xml_node property);

}  // namespace quorvantis
