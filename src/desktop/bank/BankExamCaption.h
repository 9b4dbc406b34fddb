// SPDX-License-Identifier: MIT
// How windows name an exam of the bank.
#pragma once

#include "bank/index/BankIndex.h"

#include <QString>

namespace quorvantis {

/// Its title on one line; without one, its file name without the extension.
QString BankExamName(const BankExam& exam);

/// The day on which its file was last changed, such as "2024-03-01".
QString BankExamDay(const BankExam& exam);

}  // namespace quorvantis
