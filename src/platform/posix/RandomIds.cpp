// SPDX-License-Identifier: MIT
#include "platform/posix/RandomIds.h"

#include <array>
#include <cstdint>
#include <random>

namespace quorvantis {
namespace {

std::array<std::uint8_t, 16> RandomBytes() {
  std::random_device random;
  std::array<std::uint8_t, 16> bytes{};
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
  return bytes;
}

}  // namespace

std::u16string RandomIds::NewId() {
  constexpr std::u16string_view kDigits = u"0123456789ABCDEF";
  std::array<std::uint8_t, 16> bytes = RandomBytes();
  bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);
  bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);
  std::u16string id = u"{";
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool newGroup = i == 4 || i == 6 || i == 8 || i == 10;
    if (newGroup) id += u'-';
    id += kDigits[bytes[i] >> 4];
    id += kDigits[bytes[i] & 0x0F];
  }
  return id + u"}";
}

}  // namespace quorvantis
