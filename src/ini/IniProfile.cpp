// SPDX-License-Identifier: MIT
#include "ini/IniProfile.h"

#include "ini/ProfileFile.h"
#include "platform/CodePage.h"
#include "platform/WholeFile.h"

#include <algorithm>

namespace quorvantis {

bool IniProfile::SetFile(const std::filesystem::path& file, std::u16string_view section) {
  if (file.empty()) lastError_ = kNoFile;
  if (section.empty()) lastError_ = kNoSection;
  if (file.empty() || section.empty()) return false;
  file_ = file;
  section_ = section;
  return true;
}

bool IniProfile::GetString(std::u16string_view key, std::u16string& value) {
  if (key.empty()) {
    lastError_ = kNoKey;
    return false;
  }
  value = ProfileFile(file_, &codePage_).Value(section_, key).value_or(std::u16string());
  value.resize(std::min(value.size(), kBufferSize - 1));
  return true;
}

bool IniProfile::WriteString(std::u16string_view key, std::u16string_view value) {
  if (key.empty() || value.empty() || file_.empty()) return false;
  ProfileFile profile(file_, &codePage_);
  if (!profile.IsWhole() || !profile.SetValue(section_, key, value)) return false;
  return !SaveWholeFile(files_, file_, profile.Bytes());
}

}  // namespace quorvantis
