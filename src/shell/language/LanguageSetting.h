// SPDX-License-Identifier: MIT
#pragma once

#include "ini/IniProfile.h"

#include <filesystem>

namespace quorvantis {

/// The identifier of the language that the user wants: the decimal value of key "Language" in section
/// "private" of "system.ini" in the application folder.
class LanguageSetting {
 public:
  /// `files` and `codePage` as for IniProfile.
  LanguageSetting(const std::filesystem::path& applicationFolder, Files& files, const CodePage& codePage);

  /// 0 when there is none.
  int Read();

  /// A file that cannot be written stays unchanged.
  void Write(int languageId);

 private:
  IniProfile profile_;
};

}  // namespace quorvantis
