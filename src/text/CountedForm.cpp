// SPDX-License-Identifier: MIT
#include "text/CountedForm.h"

#include <cstdint>
#include <optional>

namespace quorvantis {
namespace {

constexpr std::u16string_view kDigits = u"0123456789";

/// Removes the part of `text` up to `separator`, and the separator, and returns the part.
std::u16string_view TakeUpTo(char16_t separator, std::u16string_view& text) {
  const std::size_t end = text.find(separator);
  const std::u16string_view part = text.substr(0, end);
  text.remove_prefix(end == text.npos ? text.size() : end + 1);
  return part;
}

std::optional<std::uint64_t> NumberOf(std::u16string_view digits) {
  constexpr std::size_t kMostDigits = 18;
  if (digits.empty() || digits.size() > kMostDigits || digits.find_first_not_of(kDigits) != digits.npos)
    return std::nullopt;
  std::uint64_t number = 0;
  for (const char16_t digit : digits) number = number * 10 + (digit - u'0');
  return number;
}

/// Whether a number is one of "5", "3-10" or "*11-14".
bool IsWithin(std::u16string_view range, std::u16string_view number) {
  const bool lastDigitsOnly = range.starts_with(u'*');
  if (lastDigitsOnly) range.remove_prefix(1);
  const std::u16string_view first = TakeUpTo(u'-', range);
  const std::u16string_view last = range.empty() ? first : range;
  if (lastDigitsOnly && number.size() > last.size()) number.remove_prefix(number.size() - last.size());
  const auto value = NumberOf(number);
  return value && NumberOf(first) <= value && value <= NumberOf(last);
}

/// Removes the numbers that a form is for from its front and returns them; nothing if it has none.
std::optional<std::u16string_view> TakeCondition(std::u16string_view& form) {
  const std::size_t colon = form.find_first_not_of(u"0123456789,-*");
  if (colon == 0 || colon == form.npos || form[colon] != u':') return std::nullopt;
  return TakeUpTo(u':', form);
}

bool Fits(std::u16string_view condition, std::u16string_view number) {
  while (!condition.empty()) {
    if (IsWithin(TakeUpTo(u',', condition), number)) return true;
  }
  return false;
}

}  // namespace

std::u16string_view CountedForm(std::u16string_view forms, std::u16string_view number) {
  for (;;) {
    const std::size_t end = forms.find(u'|');
    std::u16string_view form = forms.substr(0, end);
    const auto condition = TakeCondition(form);
    if (end == forms.npos || !condition || Fits(*condition, number)) return form;
    forms.remove_prefix(end + 1);
  }
}

}  // namespace quorvantis
