// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

/// A begin or end tag as it stands in a text.
struct ReadTag {
  std::u16string name{};  ///< as written
  bool isEnd = false;
  std::vector<std::pair<std::u16string, std::u16string>> attributes{};  ///< names in lower case
  std::size_t length = 0;                                               ///< in UTF-16 units

  /// The value of an attribute; empty if it is missing.
  std::u16string_view Value(std::u16string_view attribute) const;
};

/// Reads tags the way browsers do. Takes time in proportion to the text, however broken its tags are.
class TagReader {
 public:
  explicit TagReader(std::u16string_view text) : text_(text) {}

  /// The tag that begins at `place`, where there is a "<". Nothing if none does, or if it does not end.
  std::optional<ReadTag> At(std::size_t place);

 private:
  bool ReadAttributes(ReadTag& tag, std::size_t& at) const;
  std::u16string ReadValue(std::size_t& at) const;
  void SkipBlanks(std::size_t& at) const;

  std::u16string_view text_;
  bool noneEnds_ = false;  ///< a tag ran to the end of the text, and so would all others
};

/// `text` with its character references resolved.
std::u16string ResolveEntities(std::u16string_view text);

}  // namespace quorvantis
