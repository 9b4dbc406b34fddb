// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/TypedOrder.h"

#include "bank/draw/DrawQuestions.h"
#include "bank/tags/TagEntry.h"
#include "bank/tags/TypedTags.h"
#include "desktop/controls/KindCaption.h"
#include "desktop/controls/QtText.h"
#include "model/ExamLimits.h"
#include "platform/texts/DrawTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QDate>

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr qint64 kJulianDayOf1970 = 2'440'588;

std::optional<std::chrono::sys_days> DayIn(const std::u16string& text) {
  const QDate date = QDate::fromString(ToQString(text), Qt::ISODate);
  if (!date.isValid()) return std::nullopt;
  return std::chrono::sys_days(std::chrono::days(date.toJulianDay() - kJulianDayOf1970));
}

/// A tag keeps its direction beside words of the other one.
std::u16string IsolatedTag(std::u16string_view sign, const std::u16string& tag) {
  return u'\u2068' + std::u16string(sign) + tag + u'\u2069';
}

/// What is blank is left out. A tag that is none (CleanTag) goes into `bad`.
std::vector<std::u16string> WishedTags(std::u16string_view line, std::u16string& bad) {
  std::vector<std::u16string> tags;
  for (const TextSpan& place : TypedTagsIn(line)) {
    const std::u16string_view typed = TypedTag(place.Of(line));
    if (typed.empty()) continue;
    if (auto tag = CleanTag(typed))
      tags.push_back(std::move(*tag));
    else
      bad = typed;
  }
  return tags;
}

std::vector<DrawWish> WishesOf(const TypedWish& typed, std::u16string& bad) {
  DrawWish wish;
  wish.count = static_cast<std::size_t>(std::clamp(typed.count, 1, kMaxQuestions));
  if (typed.kind >= 0) wish.kind = static_cast<QuestionKind>(typed.kind);
  wish.tags = WishedTags(typed.tags, bad);
  wish.withoutTags = WishedTags(typed.withoutTags, bad);
  const std::vector<std::u16string> spread = WishedTags(typed.spreadOver, bad);
  return spread.empty() ? std::vector<DrawWish>{wish} : SpreadOver(wish, spread);
}

}  // namespace

TypedOrder OrderOf(const TypedDraw& typed, const StringTable& strings) {
  TypedOrder read;
  DrawRequest& request = read.order.request;
  std::u16string bad;
  for (const TypedWish& wish : typed.wishes) {
    const std::vector<DrawWish> wishes = WishesOf(wish, bad);
    request.wishes.insert(request.wishes.end(), wishes.begin(), wishes.end());
  }
  request.notUsedSince = DayIn(typed.notUsedSince);
  read.order.folder = typed.folder;
  bool isNumber = false;
  request.seed = ToQString(typed.seed).trimmed().toULongLong(&isNumber);
  if (!isNumber) read.problem = strings.Text(text_id::kDrawBadSeed);
  if (!bad.empty()) read.problem = FillMessage(strings.Text(text_id::kDrawBadTag), {bad});
  return read;
}

std::u16string WishName(const DrawWish& wish, const StringTable& strings) {
  const std::u16string kind =
      wish.kind ? FromQString(KindCaption(*wish.kind, strings)) : strings.Text(text_id::kDrawAnyKind);
  std::u16string name = FillMessage(strings.Text(text_id::kDrawWishName),
                                    {FormatInteger(static_cast<std::int64_t>(wish.count)), kind});
  std::u16string_view before = u": ";
  const auto add = [&](std::u16string_view sign, const std::u16string& tag) {
    name += before;
    name += IsolatedTag(sign, tag);
    before = u", ";
  };
  for (const std::u16string& tag : wish.tags) add(u"", tag);
  for (const std::u16string& tag : wish.withoutTags) add(u"-", tag);
  return name;
}

}  // namespace quorvantis
