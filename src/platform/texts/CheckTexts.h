// SPDX-License-Identifier: MIT
// What the check of an exam finds, and its window. Each finding stands behind the number of its question.
#pragma once

namespace quorvantis::text_id {

// Options and keys
constexpr int kCheckNoKey = 1900;
constexpr int kCheckKeyOnEmpty = 1901;
constexpr int kCheckFewOptions = 1902;
constexpr int kCheckOptionGap = 1903;
constexpr int kCheckEqualOptions = 1904;

// Questions, answers and lengths
constexpr int kCheckEmptyQuestion = 1905;
constexpr int kCheckNoText = 1906;
constexpr int kCheckNoAnswer = 1907;
constexpr int kCheckNoModelAnswer = 1908;
constexpr int kCheckBlanks = 1909;
constexpr int kCheckSavingLoss = 1910;
constexpr int kCheckNearLimit = 1911;

// Scores; %1 and %2 are numbers of ranges, or %1 and %3 the questions, such as 3 or 5–9
constexpr int kCheckScoreOverlap = 1912;
constexpr int kCheckNoScore = 1913;
constexpr int kCheckZeroScore = 1914;
constexpr int kCheckScoreSum = 1915;

// What shuffling spoils, and what keys give away
constexpr int kCheckShuffledOption = 1916;
constexpr int kCheckShuffledQuestion = 1917;
constexpr int kCheckSkewedKeys = 1918;
constexpr int kCheckLongestIsRight = 1919;
constexpr int kCheckNearlyEqual = 1920;

// Pictures and files; %1 is the name of a file
constexpr int kCheckPictureMentioned = 1921;
constexpr int kCheckFileMissing = 1922;
constexpr int kCheckFileEmpty = 1923;
constexpr int kCheckFileDamaged = 1924;
constexpr int kCheckFileMisnamed = 1925;
constexpr int kCheckFileNotShown = 1926;
constexpr int kCheckFileTooLarge = 1927;
constexpr int kCheckPictureUntold = 1928;

// Within texts; %1 is a part of the text
constexpr int kCheckUnbalancedMarkup = 1929;
constexpr int kCheckTakenForMarkup = 1930;
constexpr int kCheckLostCharacter = 1931;
constexpr int kCheckMixedScripts = 1932;
constexpr int kCheckPlainNegation = 1933;
constexpr int kCheckPageMarkup = 1966;
constexpr int kCheckSwallowingMarkup = 1967;

// Where something was found, if not in the text of the question: %1 is one of the above
constexpr int kCheckInTitle = 1940;
constexpr int kCheckInOption = 1941;
constexpr int kCheckInAnswer = 1942;
constexpr int kCheckInModelAnswer = 1943;

// How bad it is
constexpr int kSeverityWrong = 1944;
constexpr int kSeverityDoubtful = 1945;
constexpr int kSeverityHint = 1946;

// The window of the check
constexpr int kCheckEntry = 1950;
constexpr int kCheckTitle = 1951;
constexpr int kCheckWholeExam = 1952;
constexpr int kCheckQuestion = 1953;
constexpr int kCheckIgnore = 1954;
constexpr int kCheckRecall = 1955;
constexpr int kCheckShowIgnored = 1956;
constexpr int kCheckIgnored = 1957;
constexpr int kCheckCounts = 1958;
constexpr int kCheckNothing = 1959;
constexpr int kCheckSum = 1960;
constexpr int kCheckColumnFinding = 1961;
constexpr int kCheckColumnSeverity = 1962;
constexpr int kCheckRunning = 1963;

}  // namespace quorvantis::text_id
