// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangedExam.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The class of a paragraph that holds nothing but the field for an answer, so that it is no blank of the
/// text.
inline constexpr std::string_view kAnswerFieldClass = "qv-answer";

/// An item of QTI 2.1 with one question. Its score is 0 to 1; what it counts stands in the test.
/// `addresses` has the address of each file of the question.
std::string QtiItem(const ExchangedQuestion& question, const std::string& identifier, bool shuffles,
                    const std::vector<std::string>& addresses);

}  // namespace quorvantis
