// SPDX-License-Identifier: MIT
#include "shell/settings/BankViewSetting.h"

#include "platform/WholeFile.h"

#include <string_view>

namespace quorvantis {
namespace {

constexpr std::u16string_view kBankSection = u"bank";
constexpr std::u16string_view kViewKey = u"View";
constexpr std::u16string_view kAsPage = u"page";
constexpr std::u16string_view kAsText = u"text";

}  // namespace

bool BankViewSetting::IsPage() const {
  return ProfileFile(file_, &codePage_).Value(kBankSection, kViewKey) == kAsPage;
}

void BankViewSetting::Write(bool isPage) const {
  ProfileFile profile(file_, &codePage_);
  if (profile.IsWhole() && profile.SetValue(kBankSection, kViewKey, isPage ? kAsPage : kAsText))
    SaveWholeFile(files_, file_, profile.Bytes());
}

}  // namespace quorvantis
