// SPDX-License-Identifier: MIT
// Of versions of an exam: making them, what they keep, verifying them, and their window.
#pragma once

namespace quorvantis::text_id {

// What is wrong with a request.
constexpr int kVersionCountWrong = 2050;
constexpr int kVersionNameUnusable = 2051;
constexpr int kVersionNameTwice = 2052;
constexpr int kVersionsNoQuestions = 2053;
constexpr int kVersionsTooFew = 2054;
constexpr int kVersionsDamaged = 2055;
constexpr int kVersionsLoss = 2056;

// The folder of the versions, %1.
constexpr int kVersionsFolderTaken = 2057;
constexpr int kVersionsFolderReplaceable = 2058;
constexpr int kVersionsFolderForeign = 2059;
constexpr int kVersionsNotWritten = 2060;
constexpr int kVersionsCancelled = 2061;
constexpr int kVersionsNotProved = 2062;

// What came of it.
constexpr int kVersionsMade = 2063;
constexpr int kVersionsNarrowed = 2064;
constexpr int kVersionsRandomOff = 2065;
constexpr int kVersionsNoSheets = 2066;
constexpr int kVersionsPagesDiffer = 2067;

// How much can be copied: %1 and %2 are names of versions, others shares in percent.
constexpr int kCopyingChance = 2068;
constexpr int kCopyingOfPair = 2069;

// What keeps its place, and why: %1 is the number of the question, %2 the letter of an option or another
// question.
constexpr int kPinnedByTeacher = 2070;
constexpr int kPinnedNamesQuestion = 2071;
constexpr int kPinnedIsNamed = 2072;
constexpr int kPinnedFollowsOn = 2073;
constexpr int kPinnedCannotMoveAlong = 2074;
constexpr int kPinnedEmpty = 2075;
constexpr int kPinnedOptionByTeacher = 2076;
constexpr int kPinnedSpeaksOfOthers = 2077;
constexpr int kPinnedNamesLetters = 2078;
constexpr int kPinnedOwnLetters = 2079;
constexpr int kPinnedTooFew = 2080;
constexpr int kPinnedOddKey = 2081;

// What verifying finds. Of a file or exam, %1; of the question at a place, %1, which is question %2 of the
// exam.
constexpr int kFileChanged = 2086;
constexpr int kPlanUnreadable = 2087;
constexpr int kSourceMissing = 2088;
constexpr int kSourceChanged = 2089;
constexpr int kExamDiffers = 2090;
constexpr int kQuestionDiffers = 2091;
constexpr int kInFile = 2092;
constexpr int kCellDiffers = 2093;
constexpr int kTableUnreadable = 2094;
constexpr int kTheQuestionCount = 2095;
constexpr int kTheFiles = 2096;
constexpr int kPlanIncomplete = 2097;
constexpr int kPinnedPartMoved = 2098;
constexpr int kPaperLacksText = 2099;
constexpr int kPdfUnreadable = 2100;
constexpr int kVersionsRight = 2101;
constexpr int kPaperLacksCode = 2102;

// What verifying finds of the folder, the plan and the papers.
constexpr int kVersionsFolderIsLink = 2135;
constexpr int kVersionNamesAlike = 2136;  // two names
constexpr int kPlannedByAnother = 2137;
constexpr int kPlanNotDerived = 2138;
constexpr int kReportNotCompared = 2139;
constexpr int kReportDiffers = 2140;     // %1 is the line
constexpr int kPageCountDiffers = 2141;  // %1 is the file, then the pages it should have, and those it has
constexpr int kFileNotExpected = 2142;
constexpr int kPaperNotCompared = 2149;

// The window for versions.
constexpr int kVersionsEntry = 2110;
constexpr int kVersionsWindow = 2111;
constexpr int kVersionsHowMany = 2112;
constexpr int kVersionsNames = 2113;
constexpr int kVersionsSeed = 2114;
constexpr int kVersionsNewSeed = 2115;
constexpr int kVersionsQuestions = 2116;
constexpr int kMovesNone = 2117;
constexpr int kMovesNeighbours = 2118;
constexpr int kMovesWithinKind = 2119;
constexpr int kMovesWithinScore = 2120;
constexpr int kMovesAll = 2121;
constexpr int kVersionsOptions = 2122;
constexpr int kVersionsKept = 2123;
constexpr int kVersionsPlan = 2124;
constexpr int kVersionsReport = 2125;
constexpr int kVersionsFolder = 2126;
constexpr int kVersionsChooseFolder = 2127;
constexpr int kVersionsMake = 2128;
constexpr int kVersionsOpenFolder = 2129;
constexpr int kVersionsSaveFirst = 2130;
constexpr int kVersionsReplaceAsk = 2131;
constexpr int kVersionsQuestionRow = 2133;
constexpr int kVersionsMaking = 2134;

// The check from the window for versions; the second is its tooltip
constexpr int kVersionsCheck = 1968;
constexpr int kVersionsCheckTip = 1969;

}  // namespace quorvantis::text_id
