// SPDX-License-Identifier: MIT
// The rules of a repository for people who edit them: what each is for, and what it finds.
#pragma once

#include "learn/reading/PaperReading.h"
#include "platform/StringTable.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A rule that is a text.
struct RuleField {
  std::u16string_view key;  ///< as in "ImportExam.ini"
  int words = 0;            ///< number of the text that says what it is for
  std::u16string ImportSettings::*value = nullptr;
  bool isPattern = true;
};

/// All of them, the most important first.
std::span<const RuleField> RuleFields();

/// How often the rule of this key was used in a reading.
int MatchesOf(std::u16string_view key, const PaperReading& reading);

/// Why a rule is invalid, in one line for the user; empty if it can be used.
std::u16string RuleFault(const RuleField& field, std::u16string_view value, const StringTable& strings);

/// The same, or how often it was used; empty for an empty rule.
std::u16string RuleStateText(const RuleField& field, std::u16string_view value, const PaperReading& reading,
                             const StringTable& strings);

/// "Prepare" with a step switched on or off. Names that are no steps stay.
std::vector<std::u16string> WithStep(const std::vector<std::u16string>& prepare, std::u16string_view step,
                                     bool isOn);

bool HasStep(const std::vector<std::u16string>& prepare, std::u16string_view step);

}  // namespace quorvantis
