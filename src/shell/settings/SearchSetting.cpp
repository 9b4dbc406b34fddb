// SPDX-License-Identifier: MIT
#include "shell/settings/SearchSetting.h"

#include "platform/WholeFile.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>

namespace quorvantis {
namespace {

constexpr std::u16string_view kSearchSection = u"search";
constexpr std::u16string_view kPlaceKey = u"Place";

struct Switch {
  std::u16string_view key;
  bool SearchWindowState::*value;
};

constexpr Switch kSwitches[] = {{u"Pattern", &SearchWindowState::isPattern},
                                {u"MatchCase", &SearchWindowState::matchCase},
                                {u"WholeWords", &SearchWindowState::wholeWords}};

/// Four numbers with commas between them.
std::optional<SearchWindowState::Place> ParsePlace(std::u16string_view text) {
  std::array<int, 4> numbers{};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::size_t comma = std::min(text.find(u','), text.size());
    if ((comma == text.size()) != (i + 1 == numbers.size())) return std::nullopt;
    numbers[i] = ParseInteger(text.substr(0, comma));
    text.remove_prefix(std::min(comma + 1, text.size()));
  }
  return SearchWindowState::Place{numbers[0], numbers[1], numbers[2], numbers[3]};
}

std::u16string FormatPlace(const SearchWindowState::Place& place) {
  return FormatInteger(place.x) + u',' + FormatInteger(place.y) + u',' + FormatInteger(place.width) + u',' +
         FormatInteger(place.height);
}

}  // namespace

SearchWindowState SearchSetting::Read() const {
  const ProfileFile profile(file_, &codePage_);
  SearchWindowState state;
  if (const auto place = profile.Value(kSearchSection, kPlaceKey)) state.place = ParsePlace(*place);
  for (const Switch& one : kSwitches) state.*one.value = profile.Value(kSearchSection, one.key) == u"1";
  return state;
}

void SearchSetting::Write(const SearchWindowState& state) const {
  ProfileFile profile(file_, &codePage_);
  if (!profile.IsWhole()) return;
  bool isSet = !state.place || profile.SetValue(kSearchSection, kPlaceKey, FormatPlace(*state.place));
  for (const Switch& one : kSwitches)
    isSet = isSet && profile.SetValue(kSearchSection, one.key, state.*one.value ? u"1" : u"0");
  if (isSet) SaveWholeFile(files_, file_, profile.Bytes());
}

}  // namespace quorvantis
