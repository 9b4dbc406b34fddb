// SPDX-License-Identifier: MIT
// What learning systems ask of the files of each format, beyond the order of elements: what is referred to is
// there, answers fit questions, and every number is one that importers take.
#pragma once

#include "ElementRules.h"

#include <filesystem>
#include <functional>

namespace quorvantis::test {

Faults CheckQtiPackage(const PackageParts& parts);
Faults CheckCanvasPackage(const PackageParts& parts);

/// The one part is the file itself.
Faults CheckMoodleXml(const PackageParts& parts);

/// All files of a package, and all that its manifest says of them. Calls back with each resource.
void CheckManifest(const PackageParts& parts, const std::function<void(pugi::xml_node resource)>& take,
                   Faults& faults);

/// The questions and answers of one item of QTI 2.1. `addressed` is called with every address in it.
void CheckQtiItem(pugi::xml_node item, const std::function<void(const std::string& address)>& addressed,
                  Faults& faults);

/// HTML as learning systems keep it: known elements in each other, addresses, nothing that would run.
void CheckHtml(const std::string& place, const std::string& html,
               const std::function<void(const std::string& address)>& addressed, Faults& faults);

/// Unpacks a package; a file that is none is its only part, without a name.
PackageParts PartsOf(const std::filesystem::path& file);

}  // namespace quorvantis::test
