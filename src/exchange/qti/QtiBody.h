// SPDX-License-Identifier: MIT
// The body of an item or of a passage of QTI 2 on its way to an exam text.
#pragma once

#include "exchange/qti/QtiPackage.h"
#include "exchange/xml/HtmlParts.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// Puts the parts of the package that `body` includes in their places; told of those that are missing.
void IncludeParts(QtiPackage& package, const std::string& from, pugi::xml_node body);

/// Sounds and other media are objects, which a page would run; they become links.
void MakeLinksOfObjects(pugi::xml_node body);

/// The content of an element as an exam text.
std::u16string TextOfElement(pugi::xml_node element, HtmlReading& html, ExchangedQuestion& question);

/// The path of a part, given the one it is named in: addresses are relative to it.
std::string PathBeside(const std::string& from, std::string_view address);

/// The part from which addresses below `element` count, given the part it stands in: elements can name
/// another folder.
std::string BaseOf(const std::string& from, pugi::xml_node element);

}  // namespace quorvantis
