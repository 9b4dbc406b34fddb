// SPDX-License-Identifier: MIT
#include "render/PageFile.h"

#include "text/Utf.h"

#include <system_error>
#include <utility>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

/// Unit by unit the low byte and then the high one, up to `size` bytes.
std::string FirstUtf16Bytes(std::u16string_view text, std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size && i / 2 < text.size(); ++i) {
    bytes[i] = static_cast<char>(i % 2 == 0 ? text[i / 2] & 0xFF : text[i / 2] >> 8);
  }
  return bytes;
}

/// Creates an empty file. A link would lead the page elsewhere, and a pipe would block the program.
std::ofstream MakeFile(const fs::path& path) {
  std::error_code ignored;
  const fs::file_status before = fs::symlink_status(path, ignored);
  if (!fs::is_regular_file(before) && !fs::is_directory(before)) fs::remove(path, ignored);
  const fs::file_status now = fs::symlink_status(path, ignored);
  if (fs::exists(now) && !fs::is_regular_file(now)) return {};
  return std::ofstream(path, std::ios::binary | std::ios::trunc);
}

}  // namespace

PageFile::PageFile(fs::path file, PageStore& pages)
    : path_(std::move(file)), file_(MakeFile(path_)), pages_(pages) {}

void PageFile::WriteUtf8(std::u16string page) {
  const std::string bytes = Utf16ToUtf8(page) + '\0';
  Write(bytes, std::move(page));
}

void PageFile::WriteText(std::u16string page) {
  const std::string bytes = Utf16ToUtf8(page);
  Write(bytes, std::move(page));
}

void PageFile::WriteHalfUtf16(std::u16string page) {
  const std::string bytes = FirstUtf16Bytes(page, page.size() + 1);
  Write(bytes, std::move(page));
}

void PageFile::Write(const std::string& bytes, std::u16string page) {
  pages_.Add(path_, std::move(page));
  file_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  const bool isMade = file_.is_open();
  file_.close();
  if (file_) return;
  pages_.NotWritten(path_);
  std::error_code ignored;
  if (isMade) fs::remove(path_, ignored);  // half a page must not be taken for the whole one
}

}  // namespace quorvantis
