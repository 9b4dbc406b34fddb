// SPDX-License-Identifier: MIT
#include "shell/language/LanguageSetting.h"

#include "ini/ProfileFile.h"
#include "text/NumberText.h"

namespace quorvantis {
namespace {

constexpr std::u16string_view kKey = u"Language";

}  // namespace

LanguageSetting::LanguageSetting(const std::filesystem::path& applicationFolder, Files& files,
                                 const CodePage& codePage)
    : profile_(files, codePage) {
  profile_.SetFile(applicationFolder / kSettingsFile, u"private");
}

int LanguageSetting::Read() {
  std::u16string value;
  profile_.GetString(kKey, value);
  return ParseInteger(value);
}

void LanguageSetting::Write(int languageId) {
  profile_.WriteString(kKey, FormatInteger(languageId));
}

}  // namespace quorvantis
