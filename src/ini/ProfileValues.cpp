// SPDX-License-Identifier: MIT
#include "ini/ProfileValues.h"

#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {

std::u16string ReadProfileString(std::u16string_view section, std::u16string_view key,
                                 std::u16string_view fallback, const ProfileFile& file) {
  const std::u16string value = file.Value(section, key).value_or(std::u16string(fallback));
  return value.substr(0, kProfileStringBuffer - 1);
}

std::map<std::u16string, std::u16string> ReadProfileStringOfAll(std::u16string_view key,
                                                                const ProfileFile& file) {
  auto values = file.ValuesOf(key);
  for (auto& [section, value] : values) value.resize(std::min(value.size(), kProfileStringBuffer - 1));
  return values;
}

int ReadProfileInteger(std::u16string_view section, std::u16string_view key, int fallback,
                       const ProfileFile& file) {
  const auto value = file.Value(section, key);
  if (!value) return fallback;
  const bool digits = !value->empty() && IsDigit(value->front());
  return digits ? ParseInteger(*value) : 0;
}

}  // namespace quorvantis
