// SPDX-License-Identifier: MIT
// What the main window says beyond the texts that every language library has.
#pragma once

namespace quorvantis::text_id {

constexpr int kAnswer = 1003;         // "Ans"
constexpr int kTooLong = 1011;        // "Not changed: this field takes at most %1 characters."
constexpr int kIsRightAnswer = 1015;  // "%1 is a right answer", said by screen readers
constexpr int kTotalScore = 1030;     // "Total score: %1"
constexpr int kNoQuestions = 1031;    // "The exam has no questions yet."

// Of a copy that a crash left
constexpr int kRecoveryQuestion = 1040;  // with title, number of questions, file and time
constexpr int kRestore = 1041;           // its answers
constexpr int kDiscard = 1042;
constexpr int kLater = 1043;
constexpr int kRecoveryDamaged = 1044;    // "… has been moved to: %1"
constexpr int kRecoveryFilesLost = 1045;  // names of attached files
constexpr int kRecoveryFails = 1046;

}  // namespace quorvantis::text_id
