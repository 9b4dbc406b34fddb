// SPDX-License-Identifier: MIT
// Of the overview, and of questions that are moved, copied and inserted.
#pragma once

namespace quorvantis::text_id {

// Of questions that are moved, copied and inserted
constexpr int kNoSuchQuestion = 1470;
constexpr int kMoveBeyondEnd = 1471;
constexpr int kNoRoomForQuestions = 1472;
constexpr int kFileNotCopied = 1473;
constexpr int kTakenFileChanged = 1474;
constexpr int kTakenFileGone = 1475;
constexpr int kTakenFileNoExam = 1476;
constexpr int kTakenFileEmpty = 1477;
constexpr int kTakenNoSuchQuestion = 1478;
constexpr int kTakenDamaged = 1479;
constexpr int kTakenFileNotUnpacked = 1480;
constexpr int kTakenComeAfter = 1828;

constexpr int kOverview = 1481;
constexpr int kColumnNumber = 1482;
constexpr int kColumnKind = 1483;
constexpr int kColumnText = 1484;
constexpr int kColumnKey = 1485;
constexpr int kColumnScore = 1486;
constexpr int kColumnFiles = 1487;
constexpr int kColumnMissing = 1488;
constexpr int kSameScoreWord = 1489;
constexpr int kMissingText = 1490;
constexpr int kMissingKey = 1491;
constexpr int kMissingOptions = 1492;
constexpr int kMissingFile = 1493;
constexpr int kCellOfQuestion = 1495;
constexpr int kFilterText = 1496;
constexpr int kAllKinds = 1497;
constexpr int kWithoutKey = 1498;
constexpr int kWithFiles = 1499;
constexpr int kQuestionsShown = 1500;
constexpr int kMoveUp = 1501;
constexpr int kMoveDown = 1502;
constexpr int kMoveTo = 1503;
constexpr int kMoveToNumber = 1504;
constexpr int kDuplicateQuestion = 1505;
constexpr int kDeleteQuestions = 1506;
constexpr int kCutQuestions = 1507;
constexpr int kCopyQuestions = 1508;
constexpr int kPasteQuestions = 1509;
constexpr int kInsertFromExam = 1510;
constexpr int kQuestionsMoved = 1511;
constexpr int kQuestionsDuplicated = 1512;
constexpr int kQuestionsDeleted = 1513;
constexpr int kQuestionsInserted = 1514;
constexpr int kQuestionsCopied = 1515;
constexpr int kScoreChanged = 1516;
constexpr int kMoreScoresChanged = 1517;
constexpr int kNoQuestionsCopied = 1518;
constexpr int kPasteDamaged = 1519;
constexpr int kCopyTooLarge = 1520;
constexpr int kCannotCopy = 1521;
constexpr int kTickAll = 1522;
constexpr int kTickNone = 1523;
constexpr int kInsertTicked = 1524;
constexpr int kTickedAndRoom = 1525;
constexpr int kInsertFrom = 1526;
constexpr int kCopiedWithoutFile = 1527;
constexpr int kCopyQuestion = 1528;
constexpr int kPasteQuestion = 1529;
constexpr int kOverviewEntry = 1530;

}  // namespace quorvantis::text_id
