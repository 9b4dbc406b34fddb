// SPDX-License-Identifier: MIT
// The names of steps that can be undone: %1 is the number of the question, %2 a count.
#pragma once

namespace quorvantis::text_id {

constexpr int kStepExchange = 2323;
constexpr int kStepDraw = 2545;

constexpr int kStepTitle = 1250;
constexpr int kStepQuestionText = 1251;
constexpr int kStepOption = 1252;
constexpr int kStepFillInAnswer = 1253;
constexpr int kStepEssayAnswer = 1254;
constexpr int kStepAnswerBox = 1255;
constexpr int kStepKind = 1256;
constexpr int kStepRandomMode = 1257;
constexpr int kStepOral = 1258;
constexpr int kStepAttach = 1259;
constexpr int kStepRemoveFile = 1260;
constexpr int kStepAttachToExam = 1261;
constexpr int kStepRemoveExamFile = 1262;
constexpr int kStepScores = 1263;
constexpr int kStepInsert = 1264;
constexpr int kStepDelete = 1265;
constexpr int kStepMove = 1266;
constexpr int kStepDuplicate = 1267;
constexpr int kStepPaste = 1268;
constexpr int kStepTake = 1269;
constexpr int kStepReplace = 1270;
constexpr int kStepImport = 1271;
constexpr int kStepLineEnds = 1272;
constexpr int kStepOther = 1273;
constexpr int kUndoStep = 1280;  // with the name of the step
constexpr int kRedoStep = 1281;
constexpr int kUndo = 1282;  // when there is nothing to undo
constexpr int kRedo = 1283;
constexpr int kUndoForgotten = 1284;
constexpr int kUndoLostFiles = 1285;

}  // namespace quorvantis::text_id
