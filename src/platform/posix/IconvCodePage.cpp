// SPDX-License-Identifier: MIT
#include "platform/posix/IconvCodePage.h"

#include "text/Utf.h"

#include <algorithm>
#include <iconv.h>

namespace quorvantis {
namespace {

constexpr const char* kUtf16 = "UTF-16LE";
constexpr const char* kFallback = "CP1252";

const iconv_t kNoConverter = reinterpret_cast<iconv_t>(-1);  // NOLINT: iconv's own way to say no

}  // namespace

struct IconvCodePage::Converter {
  Converter(const char* to, const char* from) : handle(::iconv_open(to, from)) {}
  ~Converter() {
    if (handle != kNoConverter) ::iconv_close(handle);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  iconv_t handle;
};

IconvCodePage::IconvCodePage(const std::string& name)
    : decoder_(std::make_unique<Converter>(kUtf16, name.c_str())),
      encoder_(std::make_unique<Converter>(name.c_str(), kUtf16)) {
  if (decoder_->handle != kNoConverter && encoder_->handle != kNoConverter) return;
  decoder_ = std::make_unique<Converter>(kUtf16, kFallback);
  encoder_ = std::make_unique<Converter>(kFallback, kUtf16);
}

IconvCodePage::~IconvCodePage() = default;

std::u16string IconvCodePage::Decode(std::string_view bytes) const {
  if (decoder_->handle == kNoConverter) return Utf8ToUtf16(bytes);
  ::iconv(decoder_->handle, nullptr, nullptr, nullptr, nullptr);
  std::string input(bytes);
  char* next = input.data();
  std::size_t left = input.size();
  std::u16string text(2 * input.size() + 2, u'\0');  // no code page needs more units for a byte
  char* output = reinterpret_cast<char*>(text.data());
  std::size_t room = text.size() * sizeof(char16_t);
  while (left > 0) {
    const bool whole =
        ::iconv(decoder_->handle, &next, &left, &output, &room) != static_cast<std::size_t>(-1);
    // Some code pages hold a letter back in case an accent follows.
    ::iconv(decoder_->handle, nullptr, nullptr, &output, &room);
    if (whole || room < sizeof(char16_t)) break;
    // Malformed, or cut off at the end: one byte is lost.
    const char16_t replacement = kReplacementCharacter;
    output = std::copy_n(reinterpret_cast<const char*>(&replacement), sizeof replacement, output);
    room -= sizeof replacement;
    ++next;
    --left;
  }
  text.resize(text.size() - room / sizeof(char16_t));
  return text;
}

std::optional<std::string> IconvCodePage::Encode(std::u16string_view text) const {
  if (encoder_->handle == kNoConverter) return std::nullopt;
  ::iconv(encoder_->handle, nullptr, nullptr, nullptr, nullptr);
  std::u16string input(text);
  char* next = reinterpret_cast<char*>(input.data());
  std::size_t left = input.size() * sizeof(char16_t);
  constexpr std::size_t kMostBytesOfAUnit = 8;  // with the shifts of the code pages that have a state
  std::string bytes(kMostBytesOfAUnit * (input.size() + 1), '\0');
  char* output = bytes.data();
  std::size_t room = bytes.size();
  constexpr auto kFailed = static_cast<std::size_t>(-1);
  if (::iconv(encoder_->handle, &next, &left, &output, &room) == kFailed) return std::nullopt;
  if (::iconv(encoder_->handle, nullptr, nullptr, &output, &room) == kFailed) return std::nullopt;
  bytes.resize(bytes.size() - room);
  return bytes;
}

}  // namespace quorvantis
