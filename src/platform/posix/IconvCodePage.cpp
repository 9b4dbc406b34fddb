// SPDX-License-Identifier: MIT
#include "platform/posix/IconvCodePage.h"

#include "text/Utf.h"

#include <algorithm>
#include <iconv.h>

namespace quorvantis {
namespace {

constexpr const char* kTarget = "UTF-16LE";
constexpr const char* kFallback = "CP1252";

const iconv_t kNoConverter = reinterpret_cast<iconv_t>(-1);  // NOLINT: iconv's own way to say no

}  // namespace

struct IconvCodePage::Converter {
  explicit Converter(const std::string& name) : handle(::iconv_open(kTarget, name.c_str())) {
    if (handle == kNoConverter) handle = ::iconv_open(kTarget, kFallback);
  }
  ~Converter() {
    if (handle != kNoConverter) ::iconv_close(handle);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  iconv_t handle;
};

IconvCodePage::IconvCodePage(const std::string& name) : converter_(std::make_unique<Converter>(name)) {}

IconvCodePage::~IconvCodePage() = default;

std::u16string IconvCodePage::Decode(std::string_view bytes) const {
  if (converter_->handle == kNoConverter) return Utf8ToUtf16(bytes);
  ::iconv(converter_->handle, nullptr, nullptr, nullptr, nullptr);
  std::string input(bytes);
  char* next = input.data();
  std::size_t left = input.size();
  std::u16string text(2 * input.size() + 2, u'\0');  // no code page needs more units for a byte
  char* output = reinterpret_cast<char*>(text.data());
  std::size_t room = text.size() * sizeof(char16_t);
  while (left > 0) {
    const bool whole =
        ::iconv(converter_->handle, &next, &left, &output, &room) != static_cast<std::size_t>(-1);
    // Some code pages hold a letter back in case an accent follows.
    ::iconv(converter_->handle, nullptr, nullptr, &output, &room);
    if (whole || room < sizeof(char16_t)) break;
    // Malformed here, or cut off at the end: one byte is given up.
    const char16_t replacement = kReplacementCharacter;
    output = std::copy_n(reinterpret_cast<const char*>(&replacement), sizeof replacement, output);
    room -= sizeof replacement;
    ++next;
    --left;
  }
  text.resize(text.size() - room / sizeof(char16_t));
  return text;
}

}  // namespace quorvantis
