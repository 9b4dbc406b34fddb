// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CodePage.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// Turns the bytes of a text field into text: as UTF-16LE, or through a code page.
class FileTextDecoder {
 public:
  /// The code page must outlive the decoder.
  explicit FileTextDecoder(const CodePage& codePage) : codePage_(codePage) {}

  void SetWide(bool wide) { wide_ = wide; }

  /// The text up to the first NUL, or all of the field when it has none. An odd last byte of a wide field is
  /// ignored.
  std::u16string Decode(std::string_view field) const;

 private:
  const CodePage& codePage_;
  bool wide_ = true;
};

}  // namespace quorvantis
