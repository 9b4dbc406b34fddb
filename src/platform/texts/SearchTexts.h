// SPDX-License-Identifier: MIT
// Of find and replace.
#pragma once

namespace quorvantis::text_id {

constexpr int kReplacementIsSame = 1826;

constexpr int kFindAndReplace = 1550;
constexpr int kFindLabel = 1551;
constexpr int kReplaceLabel = 1552;
constexpr int kFindPattern = 1553;
constexpr int kMatchCase = 1554;
constexpr int kWholeWords = 1555;
constexpr int kFindPrevious = 1556;
constexpr int kFindNext = 1557;
constexpr int kReplaceOne = 1558;
constexpr int kReplaceAll = 1559;
constexpr int kPlaceTitle = 1560;  // of a hit; likewise:
constexpr int kPlaceText = 1561;
constexpr int kPlaceOption = 1562;
constexpr int kPlaceAnswer = 1563;
constexpr int kPlaceModelAnswer = 1564;
constexpr int kPlaceFile = 1565;
constexpr int kPlaceInQuestion = 1566;
constexpr int kHitQuestion = 1567;  // a column; likewise:
constexpr int kHitField = 1568;
constexpr int kHitLine = 1569;
constexpr int kHits = 1570;
constexpr int kBadPattern = 1571;
constexpr int kPatternTooLarge = 1572;
constexpr int kNoSuchGroup = 1573;
constexpr int kSearching = 1574;
constexpr int kCancelSearch = 1575;
constexpr int kReplaced = 1576;
constexpr int kFileNamesStay = 1577;  // why a hit is left alone; likewise:
constexpr int kResultTooLong = 1578;
constexpr int kAnswerGetsEmpty = 1579;
constexpr int kAnswersGetMore = 1580;
constexpr int kChangedMeanwhile = 1581;
constexpr int kLeftAlone = 1582;
constexpr int kReplaceTicked = 1583;
constexpr int kBefore = 1584;  // a column; likewise:
constexpr int kAfter = 1585;
constexpr int kSearchCancelled = 1587;
constexpr int kReplacementHint = 1588;
constexpr int kNothingToReplace = 1589;
constexpr int kMenuFind = 1590;  // entries of the menu; likewise:
constexpr int kMenuReplace = 1591;
constexpr int kNothingSought = 1592;
constexpr int kHitIsGone = 1593;

}  // namespace quorvantis::text_id
