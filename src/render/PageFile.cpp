// SPDX-License-Identifier: MIT
#include "render/PageFile.h"

#include "text/Utf.h"

#include <utility>

namespace quorvantis {
namespace {

/// Unit by unit the low byte and then the high one, up to `size` bytes.
std::string FirstUtf16Bytes(std::u16string_view text, std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size && i / 2 < text.size(); ++i) {
    bytes[i] = static_cast<char>(i % 2 == 0 ? text[i / 2] & 0xFF : text[i / 2] >> 8);
  }
  return bytes;
}

}  // namespace

PageFile::PageFile(std::filesystem::path file, PageStore& pages)
    : path_(std::move(file)), file_(path_, std::ios::binary | std::ios::trunc), pages_(pages) {}

void PageFile::WriteUtf8(std::u16string page) {
  Write(Utf16ToUtf8(page) + '\0');
  pages_.Add(path_, std::move(page));
}

void PageFile::WriteHalfUtf16(std::u16string page) {
  Write(FirstUtf16Bytes(page, page.size() + 1));
  pages_.Add(path_, std::move(page));
}

void PageFile::Write(const std::string& bytes) {
  file_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file_.close();
}

}  // namespace quorvantis
