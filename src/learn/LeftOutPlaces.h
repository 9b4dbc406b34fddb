// SPDX-License-Identifier: MIT
#pragma once

#include "learn/RoleLookup.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// Finds parts of a paper of which warnings tell the beginning: what became no question.
class LeftOutPlaces {
 public:
  /// Both must outlive this.
  LeftOutPlaces(const Paper& paper, const RoleLookup& roles);

  /// Where the part stands, as far as the next line end; nothing if there is no such text. Parts are found
  /// fastest in the order of the paper.
  std::optional<TextSpan> Find(std::u16string_view beginning);

 private:
  std::optional<std::size_t> FindFrom(std::size_t place, std::u16string_view beginning) const;

  const Paper& paper_;
  const RoleLookup& roles_;
  std::u16string text_;   ///< in one line, as warnings tell it
  std::size_t last_ = 0;  ///< where a part was found last
};

}  // namespace quorvantis
