// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PageStore.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace quorvantis {

/// The file of one page. Created empty at once and filled when the page is composed. Anything in its place
/// that is not a regular file is removed first: nothing is written through a link. If the file cannot be
/// created or written, the store notes that; the page is in the store all the same.
class PageFile {
 public:
  /// `pages` must outlive the file.
  PageFile(std::filesystem::path file, PageStore& pages);

  /// As UTF-8, followed by one zero byte; a lone surrogate becomes U+FFFD.
  void WriteUtf8(std::u16string page);

  /// As UTF-8 and nothing else.
  void WriteText(std::u16string page);

  /// As UTF-16LE without a mark, of which only the first (number of units + 1) bytes are written: little more
  /// than the first half. Deliberate: the programs that read these files count on this size.
  void WriteHalfUtf16(std::u16string page);

 private:
  void Write(const std::string& bytes, std::u16string page);

  std::filesystem::path path_;
  std::ofstream file_;
  PageStore& pages_;
};

}  // namespace quorvantis
