// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// How an attached file is shown in a page.
enum class FileKind {
  Page,       ///< hypertext
  PlainText,  ///< decoded and shown as lines
  Document,   ///< shown as pictures of its pages
  Picture,
  Media,  ///< sound and film, perhaps converted
  Flash,
  Other  ///< only its name is shown
};

struct FileKindRow {
  std::u16string_view extension;  ///< in lower case
  FileKind kind = FileKind::Other;
  std::string_view contentType = "application/octet-stream";  ///< of what a page gets: perhaps converted
};

/// The row of an extension in lower case, without its dot. Every unknown one is Other.
const FileKindRow& FileKindOf(std::u16string_view extension);

}  // namespace quorvantis
