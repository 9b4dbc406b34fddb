// SPDX-License-Identifier: MIT
// Of the import by pattern rules: its summary, and why a document or picture was not read.
#pragma once

namespace quorvantis::text_id {

constexpr int kWorkOutRules = 1610;
constexpr int kLittleRecognised = 1611;
constexpr int kLearnOnCommandLine = 1612;
constexpr int kOptionPictures = 1885;  // %2 names the %1 questions

constexpr int kQuestionsRead = 1100;
constexpr int kSlotsFilled = 1101;
constexpr int kQuestionsReplaced = 1102;
constexpr int kLeftOut = 1103;
constexpr int kRuleIsNoPattern = 1104;
constexpr int kNoSuchTable = 1105;
constexpr int kRuleIsIdle = 1106;
constexpr int kPartsLeftOut = 1107;
constexpr int kUnanswered = 1108;
constexpr int kAllTrueFalse = 1109;
constexpr int kAnswersDiffer = 1110;
constexpr int kOwnMarker = 1111;
constexpr int kLineEnds = 1112;
constexpr int kFormulasMasked = 1113;
constexpr int kFormulasAdjacent = 1114;
constexpr int kPicturesLost = 1115;
constexpr int kGivenUp = 1116;
constexpr int kQuestionsRemoved = 1117;
constexpr int kFilesStayed = 1118;
constexpr int kImportSummary = 1120;
constexpr int kUndoImport = 1121;
constexpr int kMendLineEnds = 1122;
constexpr int kUndoAfterChanges = 1123;
constexpr int kEscapeCancels = 1124;
constexpr int kClose = 1125;
constexpr int kOtherDocuments = 1126;  // a file filter that follows kImportFilter
constexpr int kRuleEndless = 1130;
constexpr int kRuleEmptyAnswer = 1131;
constexpr int kRuleTooLarge = 1132;
constexpr int kDocumentNotFound = 1140;
constexpr int kDocumentNoAccess = 1141;
constexpr int kDocumentUnknown = 1142;
constexpr int kDocumentDamaged = 1143;
constexpr int kDocumentLocked = 1144;
constexpr int kDocumentTooLarge = 1145;
constexpr int kDocumentTimedOut = 1146;
constexpr int kDocumentTooDeep = 1147;
constexpr int kPictureElsewhere = 1150;  // why pictures were lost, for kPicturesLost; likewise:
constexpr int kPictureUnknown = 1151;
constexpr int kPictureDamaged = 1152;
constexpr int kPictureTooLarge = 1153;
constexpr int kPictureNotDrawn = 1154;
constexpr int kPictureTimedOut = 1155;
constexpr int kPictureNoFile = 1156;
constexpr int kPicturesOfQuestion = 1157;  // in the list of kPicturesLost
constexpr int kQuestionAsItIs = 1158;      // lines of the summary again
constexpr int kAnswersByOrder = 1159;
constexpr int kAutomaticNumbers = 1160;

}  // namespace quorvantis::text_id
