// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

struct PageToken;

/// A begin or end tag with what its attributes say.
struct ReadTag {
  std::u16string_view name{};  ///< as written
  bool isEnd = false;
  std::vector<std::pair<std::u16string, std::u16string>> attributes{};  ///< names in lower case

  /// The value of an attribute; empty if it is missing.
  std::u16string_view Value(std::u16string_view attribute) const;
};

/// The tag at `token` of `text`, which must outlive it. References in values are resolved.
ReadTag ReadTagAt(std::u16string_view text, const PageToken& token);

}  // namespace quorvantis
