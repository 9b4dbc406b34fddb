// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvantis {

/// Unique identifiers.
class IdSource {
 public:
  virtual ~IdSource() = default;

  /// A new one, as "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" with upper-case hexadecimal digits.
  virtual std::u16string NewId() = 0;
};

}  // namespace quorvantis
