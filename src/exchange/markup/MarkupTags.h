// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// What becomes of an element of HTML.
enum class TagRole {
  Kept,         ///< exam texts have it, too
  Break,        ///< a line end
  Block,        ///< begins and ends a line
  Cell,         ///< of a table
  Picture,      ///< leaves the text
  Link,         ///< likewise, if it leads to a file of the question
  Media,        ///< a sound or a clip, likewise
  Transparent,  ///< only its content counts
  Form,         ///< the same, but it would do something
  Removed,      ///< goes with its content
};

/// An element; rows are unique by name.
struct MarkupTag {
  std::u16string_view name;
  TagRole role = TagRole::Transparent;
  bool isTold = false;   ///< whether its loss is one
  bool isXhtml = false;  ///< whether items of tests have it (only asked of those that are kept)
};

/// The row of an element; null for a name that HTML does not have. Its case does not matter.
const MarkupTag* FindTag(std::u16string_view name);

}  // namespace quorvantis
