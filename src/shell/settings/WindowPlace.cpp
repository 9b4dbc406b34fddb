// SPDX-License-Identifier: MIT
#include "shell/settings/WindowPlace.h"

#include "ini/ProfileFile.h"
#include "platform/WholeFile.h"
#include "text/NumberText.h"

#include <algorithm>
#include <string_view>

namespace quorvantis {
namespace {

constexpr std::u16string_view kPlaceKey = u"Place";
constexpr std::u16string_view kColumnsKey = u"Columns";
constexpr int kFarthest = 30000;  // pixels
constexpr std::size_t kMostNumbers = 100;

/// "10,20,30"
std::vector<int> NumbersIn(std::u16string_view text) {
  std::vector<int> numbers;
  while (!text.empty() && numbers.size() < kMostNumbers) {
    const std::size_t end = std::min(text.find(u','), text.size());
    numbers.push_back(std::clamp(ParseInteger(text.substr(0, end)), -kFarthest, kFarthest));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return numbers;
}

std::u16string Joined(const std::vector<int>& numbers) {
  std::u16string text;
  for (const int number : numbers) text += (text.empty() ? u"" : u",") + FormatInteger(number);
  return text;
}

}  // namespace

WindowPlaceSetting::WindowPlaceSetting(const std::filesystem::path& applicationFolder, Files& files,
                                       std::u16string section)
    : file_(applicationFolder / kSettingsFile), files_(files), section_(std::move(section)) {}

WindowPlace WindowPlaceSetting::Read() const {
  const ProfileFile profile(file_);
  const std::vector<int> place = NumbersIn(profile.Value(section_, kPlaceKey).value_or(u""));
  std::vector<int> columns = NumbersIn(profile.Value(section_, kColumnsKey).value_or(u""));
  if (place.size() != 4 || place[2] <= 0 || place[3] <= 0) return {0, 0, 0, 0, std::move(columns)};
  return {place[0], place[1], place[2], place[3], std::move(columns)};
}

void WindowPlaceSetting::Write(const WindowPlace& place) const {
  if (place == Read()) return;
  ProfileFile profile(file_);
  const std::u16string numbers = Joined({place.x, place.y, place.width, place.height});
  if (!profile.IsWhole() || !profile.SetValue(section_, kPlaceKey, numbers) ||
      !profile.SetValue(section_, kColumnsKey, Joined(place.columns)))
    return;
  SaveWholeFile(files_, file_, profile.Bytes());
}

}  // namespace quorvantis
