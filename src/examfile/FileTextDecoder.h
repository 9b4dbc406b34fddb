// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CodePage.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// Decodes the bytes of a text field, either as UTF-16LE or by a code page.
class FileTextDecoder {
 public:
  /// The code page must outlive the decoder.
  explicit FileTextDecoder(const CodePage& codePage) : codePage_(codePage) {}

  void SetWide(bool wide) { wide_ = wide; }

  /// The text up to the first NUL, or the whole field if there is none. An odd last byte of a wide field is
  /// ignored.
  std::u16string Decode(std::string_view field) const;

 private:
  const CodePage& codePage_;
  bool wide_ = true;
};

}  // namespace quorvantis
