// SPDX-License-Identifier: MIT
// How windows name an exam of the bank.
#pragma once

#include "bank/index/BankIndex.h"
#include "platform/StringTable.h"

#include <QString>

namespace quorvantis {

/// Its title on one line; without one, its file name without the extension.
QString BankExamName(const BankExam& exam);

/// "Biology 2 (12)": a question of an exam that has this name, which keeps its own direction.
QString BankPlaceText(const QString& exam, int number, const StringTable& strings);

/// The day on which its file was last changed, such as "2024-03-01".
QString BankExamDay(const BankExam& exam);

}  // namespace quorvantis
