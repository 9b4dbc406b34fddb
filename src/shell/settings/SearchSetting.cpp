// SPDX-License-Identifier: MIT
#include "shell/settings/SearchSetting.h"

#include "platform/WholeFile.h"

#include <string_view>

namespace quorvantis {
namespace {

constexpr std::u16string_view kSearchSection = u"search";

struct Switch {
  std::u16string_view key;
  bool SearchSwitches::*value;
};

constexpr Switch kSwitches[] = {{u"Pattern", &SearchSwitches::isPattern},
                                {u"MatchCase", &SearchSwitches::matchCase},
                                {u"WholeWords", &SearchSwitches::wholeWords}};

}  // namespace

SearchSwitches SearchSetting::Read() const {
  const ProfileFile profile(file_, &codePage_);
  SearchSwitches switches;
  for (const Switch& one : kSwitches) switches.*one.value = profile.Value(kSearchSection, one.key) == u"1";
  return switches;
}

void SearchSetting::Write(const SearchSwitches& switches) const {
  ProfileFile profile(file_, &codePage_);
  if (!profile.IsWhole()) return;
  bool isSet = true;
  for (const Switch& one : kSwitches)
    isSet = isSet && profile.SetValue(kSearchSection, one.key, switches.*one.value ? u"1" : u"0");
  if (isSet) SaveWholeFile(files_, file_, profile.Bytes());
}

}  // namespace quorvantis
