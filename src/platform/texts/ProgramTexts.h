// SPDX-License-Identifier: MIT
// Numbers of the texts that every language library has, ours and others: the main window, its dialogs and its
// pages. Below 1000; the other headers number texts of our own from 1000 on.
#pragma once

namespace quorvantis::text_id {

constexpr int kAbout = 101;               // "Oxna Quorvantis(&A)..."; no such menu item when empty
constexpr int kOpenFileError = 102;       // "Open file %s error!"
constexpr int kTemporaryFileError = 103;  // "create temporary file error"
constexpr int kNoWordProcessor = 104;     // "Create dispatch failed.Please first to setup Office2000!"
constexpr int kSaveQuestion = 105;        // "File '%s' Changed.\nSave File ?"
constexpr int kOpenExamFilter = 106;
constexpr int kWindowTitle = 107;     // "Quorvantis - %s"
constexpr int kRandomOptions = 108;   // "Random(option)"
constexpr int kRandomSequence = 109;  // "Random(sequence)"
constexpr int kRandom = 110;
constexpr int kLanguage = 111;
constexpr int kSelectLanguage = 112;
constexpr int kOk = 113;
constexpr int kScoreDistribution = 114;
constexpr int kQuestion = 115;
constexpr int kScore = 116;
constexpr int kSameScores = 117;  // "Each question has the same scores"
constexpr int kExported = 118;    // "Save as *.Doc Success!"
constexpr int kTitle = 119;
constexpr int kEditArea = 120;
constexpr int kChoice = 121;
constexpr int kFillIn = 122;
constexpr int kEssay = 123;
constexpr int kOral = 124;
constexpr int kAttachFiles = 125;
constexpr int kBackward10 = 126;
constexpr int kPrevious = 127;
constexpr int kForward10 = 128;
constexpr int kNext = 129;
constexpr int kDeleteQuestion = 130;
constexpr int kInsertQuestion = 131;
constexpr int kAttachToQuestion = 132;
constexpr int kNew = 133;
constexpr int kOpen = 134;
constexpr int kSave = 135;
constexpr int kSaveAs = 136;
constexpr int kPreview = 137;
constexpr int kScoreSettings = 138;
constexpr int kPrint = 139;
constexpr int kListSeparatorTip = 140;
constexpr int kFinishExam = 141;
constexpr int kSaveExamFilter = 142;
constexpr int kAttachmentFilter = 143;
constexpr int kYourScoreIs = 144;
constexpr int kCorrectAnswerIs = 145;
constexpr int kYourAnswerIs = 146;
constexpr int kOralSubject = 147;
constexpr int kOralByTeacher = 148;  // shown where a page has no recorder
constexpr int kAssignedScore = 149;
constexpr int kScoreGroup = 150;  // "Score Distribution"
constexpr int kImportFilter = 151;
constexpr int kRangeQuestion = 152;     // "Question"
constexpr int kRangeTo = 153;           // "to"
constexpr int kRangeScore = 154;        // "Score="
constexpr int kMinimumQuestions = 155;  // "Minimum questions(1-500)"
constexpr int kCancel = 156;
constexpr int kScanQuestions = 157;
constexpr int kLanguageName = 158;  // the name of the language, in that language
constexpr int kCloseOffice = 159;   // "Close Ms Office?"
constexpr int kImportExam = 160;
constexpr int kPictureNotice = 161;      // "(Can not show the picture)"
constexpr int kWrongDocumentPath = 162;  // "The Document file path is wrong!"
constexpr int kWrongImportRules = 163;   // "There is something wrong in file ImportExam.ini"
constexpr int kPicturesInAnswers = 167;  // follows a list of question numbers
constexpr int kNotice = 168;             // caption of a message: "clew"
constexpr int kOralOff = 172;            // caption of the oral toggle while the flag is 0
constexpr int kOralOn = 173;

}  // namespace quorvantis::text_id
