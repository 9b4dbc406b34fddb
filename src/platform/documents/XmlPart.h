// SPDX-License-Identifier: MIT
// XML of a package. Names are compared without their prefix: which one stands for a namespace is up to the
// program that wrote the file, and the names that matter here are the same in no two namespaces.
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

/// A whole number of few digits; `otherwise` when the attribute is missing or no such number.
int NumberOf(pugi::xml_node node, int otherwise, std::string_view localName = "val");

/// Whether a property such as `<w:vanish/>` is there and not switched off.
bool IsOn(pugi::xml_node property);

}  // namespace quorvantis
