// SPDX-License-Identifier: MIT
// Converts texts and paths between the core and Qt, unit by unit: nothing is checked, replaced or cut off.
#pragma once

#include "text/PathText.h"

#include <QString>

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvantis {

inline QString ToQString(std::u16string_view text) {
  return QStringView(text).toString();
}

inline std::u16string FromQString(const QString& text) {
  return text.toStdU16String();
}

inline QString PathToQString(const std::filesystem::path& path) {
  return ToQString(PathToText(path));
}

inline std::filesystem::path QStringToPath(const QString& path) {
  return TextToPath(FromQString(path));
}

}  // namespace quorvantis
