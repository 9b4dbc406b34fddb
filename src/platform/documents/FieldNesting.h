// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace quorvantis {

/// Follows the fields of a document, which begin, pass from instruction to result and end at places in the
/// text. A field that never ends is ignored: everything after it would count as its instruction.
class FieldNesting {
 public:
  explicit FieldNesting(pugi::xml_node body);

  /// Handles a `fldChar`. True if it ends an equation that was written as a field and has no result.
  bool Take(pugi::xml_node fieldCharacter);
  void AddInstruction(std::string_view text);

  /// Whether text at this place is part of an instruction, or of a result that only sets a variable.
  bool IsUnseen() const { return unseen_ != 0; }

  /// Whether a field's result is never shown.
  static bool HidesResult(std::string_view instruction);

 private:
  struct Field {
    std::string instruction;
    bool inResult = false;
    bool isShown = false;
  };

  std::unordered_set<std::size_t> complete_;  ///< hashes of the nodes that begin a complete field
  std::vector<Field> open_;
  std::size_t unseen_ = 0;  ///< open fields that show nothing here
};

}  // namespace quorvantis
