// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

class CodePage;

/// How the text of a profile file is stored: UTF-8 with or without a byte-order mark, UTF-16 of either byte
/// order with one, otherwise 8-bit text of a code page.
class ProfileEncoding {
 public:
  /// The encoding of a file with these bytes. `codePage` may be null; it must outlive the encoding.
  static ProfileEncoding Of(std::string_view bytes, const CodePage* codePage);

  /// Bytes of the mark at the beginning of the file, and of the smallest piece of text.
  std::size_t MarkSize() const { return markSize_; }
  std::size_t UnitSize() const { return form_ == Form::Utf16 ? 2 : 1; }

  /// The unit at `position` of the file's bytes; line breaks and ASCII are the same in every encoding.
  char16_t UnitAt(std::string_view bytes, std::size_t position) const;

  /// The text without the mark. Malformed parts become U+FFFD, and so does 8-bit text without a code page.
  std::u16string Decode(std::string_view bytes) const;

  /// Nothing when the file's code page lacks a character of the text.
  std::optional<std::string> Encode(std::u16string_view text) const;

 private:
  enum class Form { Utf8, Utf16, EightBit };

  ProfileEncoding(Form form, std::size_t markSize) : form_(form), markSize_(markSize) {}

  Form form_;
  std::size_t markSize_;
  bool highByteFirst_ = false;          ///< of UTF-16
  const CodePage* codePage_ = nullptr;  ///< of 8-bit text
};

}  // namespace quorvantis
