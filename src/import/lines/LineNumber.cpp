// SPDX-License-Identifier: MIT
#include "import/lines/LineNumber.h"

#include "import/labels/LineText.h"

namespace quorvantis {
namespace {

constexpr std::u16string_view kNumberOpens = u"(（[【";
constexpr std::u16string_view kNumberCloses = u".)）．、:：]】,，-–—/";

Numeral DigitsAt(std::u16string_view text, std::size_t place) {
  for (const Numeral& numeral : NumeralsAt(text, place)) {
    if (numeral.kind <= NumeralKind::Thai) return numeral;
  }
  return {};
}

}  // namespace

std::optional<LineNumber> LineNumberOf(std::u16string_view text, TextSpan line) {
  const std::u16string_view within = text.substr(0, line.end);
  std::size_t at = SkipBlanks(within, line.begin, line.end);
  LineNumber number;
  number.label.begin = at;
  if (at < line.end && kNumberOpens.find(within[at]) != kNumberOpens.npos) number.open = within[at++];
  const Numeral numeral = DigitsAt(within, at);
  at += numeral.size;
  if (numeral.size == 0 || at >= line.end) return std::nullopt;
  number.kind = numeral.kind;
  number.value = numeral.value;
  number.close = within[at];
  const bool isClosed = kNumberCloses.find(number.close) != kNumberCloses.npos;
  if (!isClosed && (number.close != u'\t' || number.open != 0)) return std::nullopt;
  number.label.end = isClosed ? at + 1 : at;
  const bool isDecimal = DigitsAt(within, number.label.end).size > 0;
  return isDecimal ? std::nullopt : std::optional(number);
}

}  // namespace quorvantis
