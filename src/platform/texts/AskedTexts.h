// SPDX-License-Identifier: MIT
// What was asked before.
#pragma once

namespace quorvantis::text_id {

constexpr int kAskedEntry = 2550;
constexpr int kAskedTitle = 2551;
constexpr int kBankSameIn = 2552;         // %1 are places
constexpr int kBankVariantsIn = 2553;     // likewise
constexpr int kBankPlace = 2554;          // an exam and the number of a question
constexpr int kBankBetweenPlaces = 2555;  // between two places
constexpr int kBankMorePlaces = 2556;
constexpr int kBankNowhereElse = 2557;
constexpr int kAskedSummary = 2558;
constexpr int kAskedNone = 2559;
constexpr int kAskedRunning = 2560;
constexpr int kAskedCancelled = 2561;
constexpr int kAskedQuestions = 2562;
constexpr int kAskedExams = 2563;
constexpr int kAskedColumnWhere = 2564;
constexpr int kAskedColumnDay = 2565;
constexpr int kAskedColumnHow = 2566;
constexpr int kAskedColumnExam = 2567;
constexpr int kAskedColumnSame = 2568;      // how many questions
constexpr int kAskedColumnVariants = 2569;  // likewise
constexpr int kAskedColumnShare = 2570;     // a share of the open exam
constexpr int kAskedShare = 2571;           // in percent
constexpr int kAskedAllExams = 2572;
constexpr int kAskedEqual = 2573;
constexpr int kAskedNearlyEqual = 2574;
constexpr int kAskedOtherNumbers = 2575;
constexpr int kAskedOtherFiles = 2576;
constexpr int kAskedOtherOptions = 2577;
constexpr int kAskedCopy = 2578;
constexpr int kAskedAgain = 2579;
constexpr int kBankExamApart = 2610;  // %1 is its title, which others have, too; %2 its file

}  // namespace quorvantis::text_id
