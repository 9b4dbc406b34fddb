// SPDX-License-Identifier: MIT
#include "exchange/xml/Base64.h"

#include <array>
#include <cstdint>

namespace quorvantis {
namespace {

constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::int8_t kBlankUnit = -2;

/// The value of each character: -1 for one that base64 does not have.
std::array<std::int8_t, 256> DigitValues() {
  std::array<std::int8_t, 256> values{};
  values.fill(-1);
  for (std::size_t i = 0; i < kDigits.size(); ++i)
    values[static_cast<unsigned char>(kDigits[i])] = static_cast<std::int8_t>(i);
  for (const char blank : {' ', '\t', '\r', '\n'}) values[static_cast<unsigned char>(blank)] = kBlankUnit;
  return values;
}

}  // namespace

std::string ToBase64(std::string_view bytes) {
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const auto byte = [&](std::size_t at) -> std::uint32_t {
      return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
    };
    const std::uint32_t group = byte(i) << 16 | byte(i + 1) << 8 | byte(i + 2);
    for (std::size_t digit = 0; digit < 4; ++digit)
      text.push_back(i + digit > bytes.size() ? '=' : kDigits[(group >> (18 - 6 * digit)) & 63]);
  }
  return text;
}

std::optional<std::string> FromBase64(std::string_view text) {
  static const std::array<std::int8_t, 256> kValues = DigitValues();
  std::string bytes;
  bytes.reserve(text.size() / 4 * 3);
  std::uint32_t bits = 0;
  unsigned count = 0;
  for (const char c : text) {
    if (c == '=') break;
    const std::int8_t value = kValues[static_cast<unsigned char>(c)];
    if (value == kBlankUnit) continue;
    if (value < 0) return std::nullopt;
    bits = bits << 6 | static_cast<std::uint32_t>(value);
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes.push_back(static_cast<char>(bits >> count & 255));
  }
  return bytes;
}

}  // namespace quorvantis
