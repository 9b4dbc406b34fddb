// SPDX-License-Identifier: MIT
#include "shell/settings/ExchangeSetting.h"

#include "platform/WholeFile.h"
#include "text/PathText.h"

#include <string_view>

namespace quorvantis {
namespace {

constexpr std::u16string_view kExchangeSection = u"exchange";
constexpr std::u16string_view kFormatKey = u"Format";
constexpr std::u16string_view kWrittenToKey = u"WrittenTo";
constexpr std::u16string_view kTakenFromKey = u"TakenFrom";

/// In quotes, since a name may end in blanks.
std::u16string Quoted(const std::filesystem::path& folder) {
  return u'"' + PathToText(folder) + u'"';
}

}  // namespace

ExchangeChoices ExchangeSetting::Read() const {
  const ProfileFile profile(file_, &codePage_);
  const auto folder = [&profile](std::u16string_view key) {
    const std::filesystem::path read = TextToPath(profile.Value(kExchangeSection, key).value_or(u""));
    return read.is_absolute() ? read : std::filesystem::path();
  };
  return {profile.Value(kExchangeSection, kFormatKey).value_or(u""), folder(kWrittenToKey),
          folder(kTakenFromKey)};
}

void ExchangeSetting::Write(const ExchangeChoices& choices) const {
  ProfileFile profile(file_, &codePage_);
  const bool isSet = profile.IsWhole() && profile.SetValue(kExchangeSection, kFormatKey, choices.format) &&
                     profile.SetValue(kExchangeSection, kWrittenToKey, Quoted(choices.writtenTo)) &&
                     profile.SetValue(kExchangeSection, kTakenFromKey, Quoted(choices.takenFrom));
  if (isSet) SaveWholeFile(files_, file_, profile.Bytes());
}

}  // namespace quorvantis
