// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// 8-bit text of one named code page.
class CodePage {
 public:
  virtual ~CodePage() = default;

  /// The bytes as UTF-16. Malformed bytes become U+FFFD; nothing is ever thrown.
  virtual std::u16string Decode(std::string_view bytes) const = 0;

  /// The bytes of a text, or nothing when the code page lacks one of its characters.
  virtual std::optional<std::string> Encode(std::u16string_view text) const = 0;
};

}  // namespace quorvantis
