// SPDX-License-Identifier: MIT
// The formats of questions that other programs read and write, one row each.
#pragma once

#include "exchange/exam/HeldParts.h"
#include "exchange/form/Format.h"

#include <memory>
#include <span>
#include <string_view>

namespace quorvantis {

struct FormatRow {
  std::string_view name;           ///< as users type it, and unique
  std::string_view otherNames{};   ///< that users may type, with blanks between them
  int title = 0;                   ///< as they read it; the number of a text
  int purpose = 0;                 ///< what it is for and where a file goes; likewise
  std::string_view extension;      ///< of new files, in lower case, without the dot
  bool extensionIsItsOwn = false;  ///< no other row has it, so it says what to write
  HeldParts held{};
  /// Whether a file looks like one of the format. A format that is only written can have it, too, so that its
  /// files are not taken for those of another.
  bool (*recognises)(const ExchangeSource& source) = nullptr;
  /// Its files begin with what no file of another format would, so they are told apart first.
  bool beginsLikeNoOther = false;
  std::unique_ptr<FormatReader> (*reader)() = nullptr;
  std::unique_ptr<FormatWriter> (*writer)() = nullptr;
};

/// In the order in which users read them and a file is compared with them.
std::span<const FormatRow> Formats();

/// The format of that name, in either case; null if there is none.
const FormatRow* FormatNamed(std::string_view name);

/// The format that a file has, by its content; null if it is none of them. It may be one without a reader.
const FormatRow* RecogniseFormat(const ExchangeSource& source);

/// The format to write into a file of that name; null if its extension does not tell.
const FormatRow* FormatForFile(const std::filesystem::path& file);

}  // namespace quorvantis
