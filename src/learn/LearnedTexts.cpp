// SPDX-License-Identifier: MIT
#include "learn/LearnedTexts.h"

#include "platform/texts/LearnTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <cmath>

namespace quorvantis {
namespace {

constexpr double kSure = 0.9;
constexpr double kRatherSure = 0.6;

int SureText(double confidence) {
  if (confidence >= kSure) return text_id::kLearnedSure;
  return confidence >= kRatherSure ? text_id::kLearnedRatherSure : text_id::kLearnedUnsure;
}

}  // namespace

std::vector<std::u16string> LearnedLines(const LearnedRules& learned, const StringTable& strings) {
  const int percent = static_cast<int>(std::floor(std::clamp(learned.confidence, 0.0, 1.0) * 100));
  std::vector<std::u16string> lines{
      FillMessage(strings.Text(SureText(learned.confidence)), {FormatInteger(percent)})};
  for (const LearnedFact& fact : learned.facts) lines.push_back(FactText(fact, strings));
  return lines;
}

std::u16string FactText(const LearnedFact& fact, const StringTable& strings) {
  const std::u16string format = strings.Text(fact.text);
  const auto& values = fact.values;
  switch (values.size()) {
    case 0:
      return FillMessage(format, {});
    case 1:
      return FillMessage(format, {values[0]});
    case 2:
      return FillMessage(format, {values[0], values[1]});
    default:
      return FillMessage(format, {values[0], values[1], values[2]});
  }
}

std::u16string RoleName(PaperRole role, const StringTable& strings) {
  return strings.Text(text_id::kRoleNone + static_cast<int>(role));
}

}  // namespace quorvantis
