// SPDX-License-Identifier: MIT
// What a save loses, and what an exam file holds beyond or short of an exam.
#pragma once

namespace quorvantis::text_id {

// An exam file that ends early
constexpr int kExamEndsEarly =
    1000;  // "The exam file ends before its contents do; question %1 and after ..."
constexpr int kExamFilesEndEarly = 1001;  // the same for an exam without questions

// What a save loses
constexpr int kOfQuestion = 1200;
constexpr int kTextCut = 1201;
constexpr int kTextEndsAtNul = 1202;
constexpr int kNumberCut = 1203;
constexpr int kNotForKind = 1204;
constexpr int kScoreRounded = 1205;
constexpr int kOralFlagLost = 1206;
constexpr int kOralFlagChanged = 1207;
constexpr int kQuestionNotStored = 1208;
constexpr int kFileStoredEmpty = 1209;
constexpr int kReadInPart = 1210;
constexpr int kNoExamFile = 1211;
constexpr int kTheTitle = 1220;
constexpr int kTheText = 1221;
constexpr int kOptionText = 1222;
constexpr int kAnswerLetters = 1223;
constexpr int kFillInAnswer = 1224;
constexpr int kEssayAnswer = 1225;
constexpr int kAttachmentName = 1226;
constexpr int kAScore = 1227;
constexpr int kTheKind = 1228;
constexpr int kTheRandomMode = 1229;
constexpr int kTheScoreMode = 1230;
constexpr int kBoundaryQuestion = 1231;
constexpr int kRangeStart = 1232;
constexpr int kRangeEnd = 1233;
constexpr int kSavingLoses = 1240;
constexpr int kStoreWhole = 1241;
constexpr int kSaveAnyway = 1242;
constexpr int kGoBack = 1243;
constexpr int kPlaceholderText = 1244;
constexpr int kChangedOnDisk = 1245;

// More in a file than an exam can have.
constexpr int kPassedOver = 1820;
constexpr int kExamFilesPassedOver = 1821;
constexpr int kQuestionFilesPassedOver = 1822;
constexpr int kQuestionsPassedOver = 1823;
constexpr int kPassedOverAnd = 1824;
constexpr int kPassedOverIsLost = 1825;

}  // namespace quorvantis::text_id
