// SPDX-License-Identifier: MIT
// The sheets made of an exam: papers, keys, answer sheets.
#pragma once

namespace quorvantis::text_id {

constexpr int kSheetName = 2000;
constexpr int kSheetClass = 2001;
constexpr int kSheetDate = 2002;
constexpr int kSheetVersion = 2003;
constexpr int kSheetVersionNamed = 2004;  // with its name
constexpr int kSheetSolutions = 2005;
constexpr int kSheetKey = 2006;
constexpr int kSheetAnswerSheet = 2007;
constexpr int kSheetPoints = 2008;  // %1 may have a fraction
constexpr int kSheetNumber = 2009;
constexpr int kSheetAnswer = 2010;
constexpr int kSheetScore = 2011;
constexpr int kSheetNoKey = 2012;
constexpr int kSheetOral = 2013;
constexpr int kSheetCross = 2014;

// Buttons above a sheet on the screen.
constexpr int kSheetPrint = 2015;
constexpr int kSheetSave = 2016;
constexpr int kSheetClose = 2017;

// Their menu.
constexpr int kSheetsMenu = 2020;
constexpr int kSheetsPaper = 2021;
constexpr int kSheetsSolutions = 2022;
constexpr int kSheetsKey = 2023;
constexpr int kSheetsAnswers = 2024;
constexpr int kSheetsLarge = 2025;

}  // namespace quorvantis::text_id
