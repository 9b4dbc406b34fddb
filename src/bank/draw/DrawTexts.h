// SPDX-License-Identifier: MIT
#pragma once

#include "bank/draw/DrawRequest.h"

#include <chrono>
#include <string>
#include <string_view>

namespace quorvantis {

class StringTable;

/// Why a question came, for the user: "one of 14 possible questions; last used on 2025-03-01; in 2 exams".
/// `lastExam`, which may be empty, names the exam in which it was used last.
std::u16string ReasonText(const DrawnQuestion& question, std::u16string_view lastExam,
                          const StringTable& strings);

/// What a wish got and what excluded the rest: "3 of 5 found; used too recently: 12".
std::u16string WishText(const DrawWish& wish, const WishOutcome& outcome, const StringTable& strings);

}  // namespace quorvantis
