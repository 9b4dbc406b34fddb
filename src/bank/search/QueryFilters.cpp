// SPDX-License-Identifier: MIT
#include "bank/search/QueryFilters.h"

#include "bank/index/FoldedText.h"
#include "model/QuestionKinds.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <limits>

namespace quorvantis {
namespace {

/// A day, a month or a year: "2024-08-01", "2024-08", "2024".
struct TypedDate {
  int year = 0;
  int month = 1;
  int day = 1;
};

bool AreDigits(std::u16string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), IsDigit);
}

std::optional<TypedDate> ReadDate(std::u16string_view text) {
  std::array<int, 3> parts{0, 1, 1};
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const std::u16string_view part = text.substr(0, text.find_first_of(u"-/."));
    if (!AreDigits(part) || part.size() > (i == 0 ? 4U : 2U)) return std::nullopt;
    parts[i] = ParseInteger(part);
    if (part.size() == text.size()) {
      const std::chrono::year_month_day date{std::chrono::year(parts[0]),
                                             std::chrono::month(static_cast<unsigned>(parts[1])),
                                             std::chrono::day(static_cast<unsigned>(parts[2]))};
      return parts[0] >= 1970 && date.ok() ? std::optional<TypedDate>({parts[0], parts[1], parts[2]})
                                           : std::nullopt;
    }
    text.remove_prefix(part.size() + 1);
  }
  return std::nullopt;
}

/// The moment at which the day begins here.
std::int64_t BeginOf(const TypedDate& date) {
  constexpr std::int64_t kNanoseconds = 1'000'000'000;
  std::tm day{};
  day.tm_year = date.year - 1900;
  day.tm_mon = date.month - 1;
  day.tm_mday = date.day;
  day.tm_isdst = -1;
  return static_cast<std::int64_t>(std::mktime(&day)) * kNanoseconds;
}

/// A number without a sign and an exponent.
std::optional<double> ReadPoints(std::u16string_view text) {
  const auto isPart = [](char16_t unit) { return IsDigit(unit) || unit == u'.' || unit == u','; };
  if (text.empty() || text.size() > 12 || !IsDigit(text.front()) ||
      !std::all_of(text.begin(), text.end(), isPart))
    return std::nullopt;
  std::u16string number(text);
  std::replace(number.begin(), number.end(), u',', u'.');
  return ParseReal(number);
}

std::optional<ScoreBounds> ReadBounds(std::u16string_view text) {
  constexpr double kNone = std::numeric_limits<double>::infinity();
  const auto takeFront = [&text](std::u16string_view sign) {
    const bool isThere = text.starts_with(sign);
    if (isThere) text.remove_prefix(sign.size());
    return isThere;
  };
  if (takeFront(u">")) {
    const bool isIn = takeFront(u"=");
    const auto least = ReadPoints(text);
    return least ? std::optional<ScoreBounds>({*least, kNone, isIn, true}) : std::nullopt;
  }
  if (takeFront(u"<")) {
    const bool isIn = takeFront(u"=");
    const auto most = ReadPoints(text);
    return most ? std::optional<ScoreBounds>({-kNone, *most, true, isIn}) : std::nullopt;
  }
  takeFront(u"=");
  const std::size_t dash = text.find(u'-');
  const auto least = ReadPoints(text.substr(0, dash));
  const auto most = dash == text.npos ? least : ReadPoints(text.substr(dash + 1));
  return least && most ? std::optional<ScoreBounds>({*least, *most, true, true}) : std::nullopt;
}

bool TakeKind(const std::u16string& value, BankQuery& query) {
  const auto* const row = std::find_if(std::begin(kQuestionKinds), std::end(kQuestionKinds),
                                       [&](const KindRow& kind) { return Utf8ToUtf16(kind.word) == value; });
  if (row == std::end(kQuestionKinds)) return false;
  if (std::find(query.kinds.begin(), query.kinds.end(), row->kind) == query.kinds.end())
    query.kinds.push_back(row->kind);
  return true;
}

bool TakeHas(const std::u16string& value, bool isWanted, BankQuery& query) {
  if (value == u"files") {
    query.hasFiles = isWanted;
  } else if (value == u"key") {
    query.hasKey = isWanted;
  } else if (value == u"tags") {
    query.hasTags = isWanted;
  } else {
    return false;
  }
  return true;
}

/// `earlier` of two wishes if both are there.
bool TakeMoment(std::u16string_view value, bool isBefore, BankQuery& query) {
  const auto date = ReadDate(value);
  if (!date) return false;
  const std::int64_t moment = BeginOf(*date);
  if (isBefore) {
    query.writtenBefore = std::min(query.writtenBefore.value_or(moment), moment);
  } else {
    query.writtenFrom = std::max(query.writtenFrom.value_or(moment), moment);
  }
  return true;
}

}  // namespace

bool TakeFilter(const QueryPart& part, const QueryWords& words, BankQuery& query) {
  const std::u16string value = words.ValueIn(part.name, FoldForSearch(part.value));
  if (value.empty()) return false;
  if (part.name == u"has") return TakeHas(value, !part.isExcluded, query);
  if (part.name == u"tag") {
    query.tags.push_back({value, part.isExcluded, part.isBegun});
    return true;
  }
  if (part.isExcluded) return false;
  if (part.name == u"kind") return TakeKind(value, query);
  if (part.name == u"before" || part.name == u"after")
    return TakeMoment(value, part.name == u"before", query);
  if (part.name == u"score") {
    const auto bounds = ReadBounds(value);
    if (bounds) query.score = bounds;
    return bounds.has_value();
  }
  if (part.name != u"exam" && part.name != u"folder") return false;
  (part.name == u"exam" ? query.exams : query.folders).push_back(value);
  return true;
}

}  // namespace quorvantis
