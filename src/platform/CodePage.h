// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// 8-bit text of one named code page.
class CodePage {
 public:
  virtual ~CodePage() = default;

  /// The bytes as UTF-16. Malformed bytes become U+FFFD; nothing is ever thrown.
  virtual std::u16string Decode(std::string_view bytes) const = 0;
};

}  // namespace quorvantis
