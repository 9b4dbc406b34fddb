// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A text as a pattern sees it: every line end (CR LF, CR or LF) is one LF, so that "." never takes half of a
/// line end, and "\n" stands for all of it.
class SearchedText {
 public:
  /// `original` must outlive this.
  explicit SearchedText(std::u16string_view original);

  std::u16string_view Text() const { return isOwn_ ? std::u16string_view(own_) : original_; }

  /// The place in the original of a place in the text, both in UTF-16 units. No result lies within a line
  /// end.
  std::size_t Original(std::size_t place) const;

 private:
  std::u16string_view original_;
  bool isOwn_ = false;  ///< the original has a CR, so the text differs from it
  std::u16string own_;
  std::vector<std::size_t> pairs_;  ///< where the text has one unit for a CR LF, in ascending order
};

}  // namespace quorvantis
