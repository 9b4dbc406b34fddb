// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// A file to read questions from.
class ExchangeSource {
 public:
  /// Reads the beginning of `file`.
  explicit ExchangeSource(std::filesystem::path file);

  const std::filesystem::path& File() const { return file_; }

  /// False if it cannot be read at all.
  bool IsOpen() const { return isOpen_; }

  /// Its first bytes, enough to recognise it.
  const std::string& Head() const { return head_; }

  /// The same without zeros, in which the names of XML look alike in UTF-8 and in UTF-16.
  std::string HeadOfXml() const;

  /// All of its bytes, at most `limit`; nothing if it has more, or cannot be read.
  std::optional<std::string> Bytes(std::size_t limit) const;

 private:
  std::filesystem::path file_;
  std::string head_;
  bool isOpen_ = false;
};

struct DecodedText {
  std::u16string text;
  int doubt = 0;  ///< the number of the text that tells what was assumed; 0: nothing
};

/// The text of a file: UTF-8 with or without a mark, or UTF-16 with one. Where most of what is not ASCII is
/// UTF-8, single bytes that are none become U+FFFD; other bytes are taken for those of Windows in the West.
DecodedText DecodeText(std::string_view bytes);

}  // namespace quorvantis
