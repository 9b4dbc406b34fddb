// SPDX-License-Identifier: MIT
#include "shell/settings/DrawSetting.h"

#include "platform/WholeFile.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <algorithm>
#include <string_view>

namespace quorvantis {
namespace {

constexpr std::u16string_view kDrawSection = u"draw";
constexpr std::u16string_view kWishesKey = u"Wishes";
constexpr std::u16string_view kSinceKey = u"NotUsedSince";
constexpr std::u16string_view kFolderKey = u"Folder";
constexpr std::u16string_view kWithOpenExamKey = u"WithOpenExam";
constexpr std::u16string_view kSeedKey = u"Seed";
constexpr std::u16string_view kCountKey = u"Count";
constexpr std::u16string_view kKindKey = u"Kind";

struct TagsKey {
  std::u16string_view key;
  std::u16string TypedWish::*value;
};

constexpr TagsKey kTagsKeys[] = {{u"Tags", &TypedWish::tags},
                                 {u"WithoutTags", &TypedWish::withoutTags},
                                 {u"SpreadOver", &TypedWish::spreadOver}};

/// "Tags2" for the second wish.
std::u16string KeyOf(std::u16string_view key, std::size_t wish) {
  return std::u16string(key) + FormatInteger(static_cast<std::int64_t>(wish) + 1);
}

/// In quotes, since a value may begin or end with quotes or blanks of its own.
std::u16string InQuotes(const std::u16string& text) {
  return u'"' + text + u'"';
}

TypedWish WishOf(const ProfileFile& profile, std::size_t wish) {
  TypedWish typed;
  if (const auto count = profile.Value(kDrawSection, KeyOf(kCountKey, wish)))
    typed.count = ParseInteger(*count);
  if (const auto kind = profile.Value(kDrawSection, KeyOf(kKindKey, wish))) typed.kind = ParseInteger(*kind);
  for (const TagsKey& tags : kTagsKeys)
    typed.*tags.value = profile.Value(kDrawSection, KeyOf(tags.key, wish)).value_or(u"");
  return typed;
}

/// Whether it could be set.
bool SetWish(ProfileFile& profile, std::size_t wish, const TypedWish& typed) {
  bool isSet = profile.SetValue(kDrawSection, KeyOf(kCountKey, wish), FormatInteger(typed.count)) &&
               profile.SetValue(kDrawSection, KeyOf(kKindKey, wish), FormatInteger(typed.kind));
  for (const TagsKey& tags : kTagsKeys)
    isSet = isSet && profile.SetValue(kDrawSection, KeyOf(tags.key, wish), InQuotes(typed.*tags.value));
  return isSet;
}

}  // namespace

TypedDraw DrawSetting::Read() const {
  const ProfileFile profile(file_, &codePage_);
  const auto value = [&profile](std::u16string_view key) {
    return profile.Value(kDrawSection, key).value_or(u"");
  };
  TypedDraw typed;
  const int wishes = std::clamp(ParseInteger(value(kWishesKey)), 0, static_cast<int>(TypedDraw::kMostWishes));
  for (std::size_t i = 0; i < static_cast<std::size_t>(wishes); ++i) {
    if (i == typed.wishes.size()) typed.wishes.emplace_back();
    typed.wishes[i] = WishOf(profile, i);
  }
  typed.notUsedSince = value(kSinceKey);
  typed.folder = TextToPath(value(kFolderKey));
  typed.leavesOutOpenExam = value(kWithOpenExamKey) != u"1";
  typed.seed = value(kSeedKey);
  return typed;
}

/// Keys of wishes that are no longer there stay; their number says how many count.
void DrawSetting::Write(const TypedDraw& typed) const {
  if (typed == Read()) return;
  ProfileFile profile(file_, &codePage_);
  const auto set = [&profile](std::u16string_view key, std::u16string_view value) {
    return profile.SetValue(kDrawSection, key, value);
  };
  const std::size_t wishes = std::min(typed.wishes.size(), TypedDraw::kMostWishes);
  bool isSet = profile.IsWhole() && set(kWishesKey, FormatInteger(static_cast<std::int64_t>(wishes))) &&
               set(kSinceKey, typed.notUsedSince) && set(kFolderKey, InQuotes(PathToText(typed.folder))) &&
               set(kWithOpenExamKey, typed.leavesOutOpenExam ? u"0" : u"1") && set(kSeedKey, typed.seed);
  for (std::size_t i = 0; i < wishes; ++i) isSet = isSet && SetWish(profile, i, typed.wishes[i]);
  if (isSet) SaveWholeFile(files_, file_, profile.Bytes());
}

}  // namespace quorvantis
