// SPDX-License-Identifier: MIT
#include "exchange/form/ExchangeSource.h"

#include "platform/WholeFile.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/HtmlEntities.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <fstream>

namespace quorvantis {
namespace {

constexpr std::size_t kHeadBytes = 65'536;

std::u16string DecodeUtf16(std::string_view bytes, bool bigEndian) {
  std::u16string text;
  text.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto first = static_cast<unsigned char>(bytes[i]);
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    text.push_back(static_cast<char16_t>(bigEndian ? first * 256 + second : second * 256 + first));
  }
  return text;
}

/// The same characters as browsers show for the numbers of these bytes.
std::u16string DecodeWindows(std::string_view bytes) {
  std::u16string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const auto entity = byte < 0x80 ? std::nullopt : ReadEntity(u"&#" + FormatInteger(byte) + u";");
    AppendCodePoint(text, entity ? entity->codePoint : byte);
  }
  return text;
}

/// Characters of several bytes hardly ever come about by chance.
bool IsMostlyUtf8(std::string_view bytes) {
  std::size_t characters = 0;
  std::size_t strays = 0;
  while (!bytes.empty()) {
    const Utf8Step step = DecodeUtf8(bytes);
    if (!step.valid) ++strays;
    if (step.valid && step.length > 1) ++characters;
    bytes.remove_prefix(step.length);
  }
  return characters > strays;
}

}  // namespace

ExchangeSource::ExchangeSource(std::filesystem::path file) : file_(std::move(file)) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(file_, error)) return;
  std::ifstream in(file_, std::ios::binary);
  isOpen_ = in.is_open();
  head_.resize(kHeadBytes);
  in.read(head_.data(), kHeadBytes);
  head_.resize(static_cast<std::size_t>(in.gcount()));
}

std::string ExchangeSource::HeadOfXml() const {
  std::string head = head_;
  std::erase(head, '\0');
  return head;
}

std::optional<std::string> ExchangeSource::Bytes(std::size_t limit) const {
  return ReadWholeFile(file_, limit);
}

DecodedText DecodeText(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE")) return {DecodeUtf16(bytes.substr(2), false)};
  if (bytes.starts_with("\xFE\xFF")) return {DecodeUtf16(bytes.substr(2), true)};
  const bool isMarked = bytes.starts_with(kUtf8Mark);
  if (isMarked) bytes.remove_prefix(kUtf8Mark.size());
  if (IsUtf8(bytes)) return {Utf8ToUtf16(bytes)};
  if (isMarked || IsMostlyUtf8(bytes)) return {Utf8ToUtf16(bytes), text_id::kExchangeBytesReplaced};
  return {DecodeWindows(bytes), text_id::kExchangeEncodingGuessed};
}

}  // namespace quorvantis
