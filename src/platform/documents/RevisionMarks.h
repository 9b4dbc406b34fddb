// SPDX-License-Identifier: MIT
// Tracked changes: a document is read as if all of them had been accepted.
#pragma once

#include <pugixml.hpp>

namespace quorvantis {

/// Whether an element encloses something that has been deleted or moved elsewhere.
bool IsDeletion(pugi::xml_node element);

/// Whether the properties of a paragraph's mark, a row or a cell say that it has been deleted.
bool HasDeletion(pugi::xml_node properties);

}  // namespace quorvantis
