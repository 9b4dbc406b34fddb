// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ChangeName.h"
#include "history/ExamDifference.h"
#include "platform/StringTable.h"

#include <string>

namespace quorvantis {

/// What a difference is to the user; for commands that do not say so themselves.
ChangeName NameOf(const ExamDifference& difference);

/// The text field that a difference of one text has changed; nothing for any other.
std::optional<FormField> TypedField(const ExamDifference& difference);

/// The name of a step in a menu, for example "delete question 4".
std::u16string DescribeChange(const ChangeName& name, const StringTable& strings);

}  // namespace quorvantis
