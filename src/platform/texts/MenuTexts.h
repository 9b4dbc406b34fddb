// SPDX-License-Identifier: MIT
// Of the menu bar, and of the list of keys.
#pragma once

namespace quorvantis::text_id {

constexpr int kFileMenu = 1400;
constexpr int kEditMenu = 1401;
constexpr int kQuestionMenu = 1402;
constexpr int kExamMenu = 1403;
constexpr int kHelpMenu = 1404;
constexpr int kOpenRecent = 1405;
constexpr int kClearRecent = 1406;
constexpr int kRecentGone = 1407;  // "%1 is not there any more …"
constexpr int kExport = 1408;
constexpr int kExportDocument = 1409;
constexpr int kExportPdf = 1410;
constexpr int kQuit = 1411;
constexpr int kCut = 1412;
constexpr int kCopy = 1413;
constexpr int kPaste = 1414;
constexpr int kSelectAll = 1415;
constexpr int kRightAnswers = 1416;
constexpr int kAnotherAnswer = 1417;
constexpr int kAttachFile = 1418;
constexpr int kGoToText = 1419;
constexpr int kGoToAnswers = 1420;
constexpr int kGoToTitle = 1421;
constexpr int kGuide = 1422;
constexpr int kKeys = 1423;
constexpr int kAboutProgram = 1424;
constexpr int kMenuBar = 1425;         // what F10 opens, in the list of keys; likewise:
constexpr int kLeaveUnasked = 1426;    // Escape
constexpr int kRemoveSelected = 1427;  // Delete
constexpr int kCommandColumn = 1428;
constexpr int kKeysColumn = 1429;
constexpr int kNoGuide = 1430;  // "The guide %1 cannot be read."

}  // namespace quorvantis::text_id
