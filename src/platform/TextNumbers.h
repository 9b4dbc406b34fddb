// SPDX-License-Identifier: MIT
// The numbers of the texts in a StringTable.
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

// Texts of our own, from 1000 on. A new one takes a free number here and a line in every file of languages/.
constexpr int kExamEndsEarly =
    1000;  // "The exam file ends before its contents do; question %1 and after ..."
constexpr int kExamFilesEndEarly = 1001;  // the same for an exam without questions
constexpr int kCannotExport = 1002;
constexpr int kAnswer = 1003;          // "Ans"
constexpr int kPreparing = 1004;       // "Preparing %1…", in the place of an attached file; likewise:
constexpr int kCannotShow = 1005;      // "%1 cannot be shown here."
constexpr int kFileMissing = 1006;     // "%1 is missing."
constexpr int kNeedsProgram = 1007;    // "%1 cannot be shown because %2 is not installed."
constexpr int kFirstPagesOnly = 1008;  // "Only the first %1 pages are shown."
constexpr int kBeginningOnly = 1009;   // "Only the beginning is shown."
constexpr int kTooLong = 1011;         // "Not changed: this field takes at most %1 characters."
constexpr int kSaveCopy = 1012;        // of an attached file
constexpr int kRemoveAttachment = 1013;
constexpr int kNoProgramOpens = 1014;  // "No program was found that can open %1."
constexpr int kIsRightAnswer = 1015;   // "%1 is a right answer", said by screen readers

constexpr int kTotalScore = 1030;   // "Total score: %1"
constexpr int kNoQuestions = 1031;  // "The exam has no questions yet."

constexpr int kRecoveryQuestion = 1040;  // with title, number of questions, file and time
constexpr int kRestore = 1041;           // its answers
constexpr int kDiscard = 1042;
constexpr int kLater = 1043;
constexpr int kRecoveryDamaged = 1044;    // "… has been moved to: %1"
constexpr int kRecoveryFilesLost = 1045;  // names of attached files
constexpr int kRecoveryFails = 1046;

// About an import.
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

// About files.
constexpr int kAllFiles = 1127;      // a file filter that follows kAttachmentFilter
constexpr int kNotPermitted = 1128;  // why a file could not be opened or saved; likewise:
constexpr int kNotThere = 1129;
constexpr int kDiskFull = 1133;
constexpr int kReadOnlyDisk = 1134;
constexpr int kIsFolder = 1135;
constexpr int kReadOrWriteFails = 1136;
constexpr int kNameTooLong = 1137;

// About what a save loses.
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

// Of the menu bar.
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

// Of export; file filters, and what came of it.
constexpr int kDocumentFilter = 1440;
constexpr int kPdfFilter = 1441;
constexpr int kPdfWritten = 1442;  // "%1 has been written."
constexpr int kPdfNotMade = 1443;  // "%1 was not written …"

// Of find and replace.
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

constexpr int kExportTimedOut = 1060;
constexpr int kExportCancelled = 1061;
constexpr int kCannotWrite = 1062;  // "%1 cannot be written: %2", with what the system says

// Of the history. The name of a step: %1 is the number of the question, %2 a count.
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

// Of questions that are moved, copied and inserted.
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

// Of the overview.
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

// The steps before marking.
constexpr int kUnknownStep = 1606;

// Of the window for papers.
constexpr int kStudio = 1620;
constexpr int kStudioEntry = 1621;
constexpr int kStudioOfPaper = 1622;
constexpr int kStudioOpen = 1624;
constexpr int kStudioPaste = 1625;
constexpr int kStudioHint = 1626;
constexpr int kStudioReading = 1627;
constexpr int kStudioLearning = 1628;
constexpr int kStudioCancelled = 1629;
constexpr int kPasteNothing = 1630;
constexpr int kPastedPaper = 1631;
constexpr int kPaperArea = 1632;
constexpr int kPaperBeginning = 1633;
constexpr int kPaperChanged = 1634;
constexpr int kResultingQuestions = 1635;
constexpr int kColumnOptions = 1636;
constexpr int kColumnNotes = 1637;
constexpr int kSaySelected = 1638;
constexpr int kRoleWithKey = 1639;
constexpr int kSignWithMeaning = 1640;
constexpr int kTakeBackMark = 1641;
constexpr int kMarks = 1642;
constexpr int kMarkLine = 1643;
constexpr int kAlreadyUnderstood = 1644;
constexpr int kSelectFirst = 1645;
constexpr int kNoMarkHere = 1646;
constexpr int kUndoMark = 1647;
constexpr int kRedoMark = 1648;
constexpr int kLoseMarks = 1649;
constexpr int kOwnRulesReplaced = 1650;
constexpr int kWithoutKeyCount = 1651;
constexpr int kPartsDropped = 1652;
constexpr int kUnderstoodShare = 1653;
constexpr int kTarget = 1654;
constexpr int kTargetBehind = 1655;
constexpr int kTargetFrom = 1656;
constexpr int kTargetNew = 1657;
constexpr int kPlaceFree = 1658;
constexpr int kPlaceFull = 1661;
constexpr int kPlaceNew = 1662;
constexpr int kImportNow = 1663;
constexpr int kSaveRulesAs = 1664;
constexpr int kRulesName = 1665;
constexpr int kRulesSaved = 1666;
constexpr int kRules = 1667;
constexpr int kRulesIntro = 1668;
constexpr int kRulePattern = 1669;
constexpr int kRulePreQuestion = 1670;
constexpr int kRulePreParenQuestion = 1671;
constexpr int kRulePreAnswer = 1672;
constexpr int kRulePreAllAnswer = 1673;
constexpr int kRuleTitle = 1674;
constexpr int kRuleBmp = 1675;
constexpr int kRuleChoiceBmp = 1676;
constexpr int kRuleChoiceKeys = 1677;
constexpr int kRuleJudgementKeys = 1678;
constexpr int kRuleOneKey = 1679;
constexpr int kRuleTable = 1680;
constexpr int kRuleQuestionKey = 1681;
constexpr int kRuleAnswerKey = 1682;
constexpr int kRuleMatches = 1683;
constexpr int kRuleInvalid = 1684;
constexpr int kStepsOfPrepare = 1685;
constexpr int kStepSoftBreaks = 1686;
constexpr int kStepTableOptions = 1687;
constexpr int kStepMixedLetters = 1688;
constexpr int kStepNoise = 1689;
constexpr int kStepUnnumbered = 1690;
constexpr int kStepPlainOptions = 1691;
constexpr int kStepKeyAtEnd = 1692;
constexpr int kStepSignedKey = 1693;
constexpr int kStepEmphasisedKey = 1694;
constexpr int kStepKeyInStem = 1695;
constexpr int kStepKeyLetters = 1696;
constexpr int kStepJudgement = 1697;
constexpr int kStepBlankForms = 1698;
constexpr int kStepOpenAnswers = 1699;
constexpr int kStepAnswerSlips = 1607;
constexpr int kStepPassages = 1608;
constexpr int kStepPlainSpaces = 1860;
constexpr int kStepOptionColumns = 1850;
constexpr int kStepNumberedOptions = 1851;
constexpr int kStepForgottenNumbers = 1852;
constexpr int kStepClozeStems = 1853;
constexpr int kPapers = 1609;  // a file filter

// Of rules that were worked out. First how sure they are, in percent.
constexpr int kLearnedSure = 1700;
constexpr int kLearnedRatherSure = 1701;
constexpr int kLearnedUnsure = 1702;
constexpr int kLearnedNothing = 1703;

// How many questions: all; with options, to fill in, others.
constexpr int kLearnedQuestions = 1704;
constexpr int kLearnedKinds = 1705;

// How questions are numbered; %1 is an example.
constexpr int kLearnedNumbers = 1706;
constexpr int kLearnedTwoNumbers = 1707;
constexpr int kLearnedListNumbers = 1708;
constexpr int kLearnedUnnumbered = 1709;
constexpr int kLearnedUnnumberedOptions = 1710;
constexpr int kLearnedNumbersRestart = 1711;

// How options are written; %1 is an example.
constexpr int kLearnedOptions = 1715;
constexpr int kLearnedOptionsInLine = 1716;
constexpr int kLearnedOptionsMixed = 1717;
constexpr int kLearnedListOptions = 1718;
constexpr int kLearnedPlainOptions = 1719;
constexpr int kLearnedOptionsInTables = 1720;
constexpr int kLearnedQuestionsInTables = 1721;
constexpr int kLearnedMixedLetters = 1722;
constexpr int kLearnedOptionCount = 1723;  // how many options most questions have
constexpr int kLearnedNoOptions = 1724;

// Where the answers are; %1 is an example.
constexpr int kLearnedAnswerLabel = 1730;
constexpr int kLearnedKeyAtEnd = 1731;  // with its heading
constexpr int kLearnedKeyAtEndPlain = 1732;
constexpr int kLearnedKeyBold = 1733;
constexpr int kLearnedKeyColoured = 1734;
constexpr int kLearnedKeyHighlighted = 1735;
constexpr int kLearnedKeyUnderlined = 1736;
constexpr int kLearnedKeyItalic = 1737;
constexpr int kLearnedKeySign = 1738;
constexpr int kLearnedKeyInStem = 1739;
constexpr int kLearnedJudgement = 1740;
constexpr int kLearnedNoAnswers = 1741;
constexpr int kLearnedKeyLetters = 1742;
constexpr int kLearnedAnswered = 1743;  // how many of how many questions

// What else was understood.
constexpr int kLearnedHeadings = 1745;
constexpr int kLearnedFront = 1746;
constexpr int kLearnedNoise = 1747;
constexpr int kLearnedBlanks = 1748;
constexpr int kLearnedSoftBreaks = 1749;
constexpr int kLearnedBeginning = 1750;
constexpr int kLearnedTableColumns = 1751;  // the words that identify them
constexpr int kLearnedMarks = 1752;
constexpr int kLearnedMarkUnfollowed = 1753;  // with its text and role

// Warnings about what was read; with the number of the question, where it is about one, as %1.
constexpr int kWarnNoKey = 1760;
constexpr int kWarnOptionCount = 1761;
constexpr int kWarnOneOption = 1762;
constexpr int kWarnEmptyOption = 1763;
constexpr int kWarnTooManyOptions = 1764;
constexpr int kWarnNumberMissing = 1765;
constexpr int kWarnNumberAgain = 1766;
constexpr int kWarnKeyNotAnOption = 1767;
constexpr int kWarnKeyUnclear = 1768;
constexpr int kWarnKeyVisible = 1769;
constexpr int kWarnTooLongText = 1770;
constexpr int kWarnTwoAnswers = 1771;
constexpr int kWarnNotRead = 1772;  // %1 is its beginning
constexpr int kWarnTooManyQuestions = 1773;
constexpr int kWarnKeyUnmatched = 1774;
constexpr int kWarnKeyMiscounted = 1830;  // %2 letters for %3 questions; %1 is the key
constexpr int kWarnKeyVersions = 1831;    // this and the following with the text as %1
constexpr int kWarnKeyLeftOut = 1832;
constexpr int kWarnKeyNotPlaced = 1833;
constexpr int kWarnKeyExplanations = 1834;

// What a part of a paper is.
constexpr int kRoleNone = 1776;
constexpr int kRoleQuestionNumber = 1777;
constexpr int kRoleQuestion = 1778;
constexpr int kRoleOptionLabel = 1779;
constexpr int kRoleOption = 1780;
constexpr int kRoleAnswerLabel = 1781;
constexpr int kRoleAnswer = 1782;
constexpr int kRoleHeading = 1783;
constexpr int kRoleNotExam = 1784;

// Why rules cannot be saved; %1 is the name that is wanted or the key of a rule.
constexpr int kRulesNameEmpty = 1786;
constexpr int kRulesNameTaken = 1787;
constexpr int kRulesNamePrefix = 1788;  // %2 is the other name
constexpr int kRulesNameUnsafe = 1789;
constexpr int kRuleTooLong = 1790;
constexpr int kRuleUnsafe = 1791;
constexpr int kRulesNotEncoded = 1792;
constexpr int kRulesFileNotRead = 1793;  // with what the system says
constexpr int kRulesFileBusy = 1794;
// A paper of which the rules recognised little.
constexpr int kWorkOutRules = 1610;
constexpr int kLittleRecognised = 1611;
constexpr int kLearnOnCommandLine = 1612;
// More in a file than an exam can have.
constexpr int kPassedOver = 1820;
constexpr int kExamFilesPassedOver = 1821;
constexpr int kQuestionFilesPassedOver = 1822;
constexpr int kQuestionsPassedOver = 1823;
constexpr int kPassedOverAnd = 1824;
constexpr int kPassedOverIsLost = 1825;

constexpr int kReplacementIsSame = 1826;
constexpr int kAttachedWithoutContent = 1827;
constexpr int kTakenComeAfter = 1828;
constexpr int kPrintComes = 1800;  // "Preparing to print… Escape cancels."
constexpr int kPrintWaits = 1801;  // what to expect, in its tooltip

// What the window for papers tells of an import and of marks.
constexpr int kPlaceInserts = 1870;  // %1 new numbers of %2 questions; %3 numbers of the %4 that move up
constexpr int kCloseThePaper = 1871;
constexpr int kKeepThePaper = 1872;
constexpr int kMarkContradicted = 1873;  // by the mark with text %1 and role %2
constexpr int kMarkWithinLine = 1874;
constexpr int kMarkWithoutRule = 1875;
constexpr int kMarkWithOthers = 1876;
constexpr int kMarkReason = 1877;       // its text, its role and one of those above
constexpr int kMarkReasonComes = 1878;  // it is being worked out
constexpr int kMarksNotUsed = 1879;
constexpr int kImportWaits = 1880;  // for the rule that %1 describes; %2 says what is wrong
constexpr int kWarnAnswerPictures = 1881;
constexpr int kWarnMorePictures = 1882;
constexpr int kWarnFormulas = 1883;
constexpr int kShowsThePlace = 1884;
// What the check of an exam finds; each stands behind the number of its question. First options and keys.
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
// The sheets made of an exam: papers, keys, answer sheets.
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
// Of versions of an exam. What is wrong with a request.
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
/// A file of a version, and the numbers of questions.
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
constexpr int kVersionsPlace = 2132;
constexpr int kVersionsQuestionRow = 2133;
constexpr int kVersionsMaking = 2134;
constexpr int kOptionPictures = 1885;  // %2 names the %1 questions

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

// After a print was started; the second in its tooltip
constexpr int kCheckPrintWrong = 1964;
constexpr int kCheckPrintGoesOn = 1965;

// In the window for versions, beside the first of these; the second is the tooltip
constexpr int kVersionsCheck = 1968;
constexpr int kVersionsCheckTip = 1969;

// What a conversion to or from the files of learning systems tells. With the number of the question in %1 of
// the first one, the others begin in lower case.
constexpr int kExchangeQuestion = 2150;  // %1 is its number, %2 what is told
constexpr int kExchangeRandomSequence = 2151;
constexpr int kExchangeExamFiles = 2152;
constexpr int kExchangeReferenceLost = 2153;
constexpr int kExchangeUnknownKind = 2154;
constexpr int kExchangeEmptyOption = 2155;
constexpr int kExchangeEmptyRightOption = 2156;
constexpr int kExchangeFileMissing = 2157;
constexpr int kExchangeFileTooLarge = 2158;
constexpr int kExchangeFormatting = 2159;
constexpr int kExchangeTable = 2160;
constexpr int kExchangeExecutable = 2161;
constexpr int kExchangeTooManyScores = 2162;
constexpr int kExchangeTooManyOptions = 2163;
constexpr int kExchangeAlternatives = 2164;
constexpr int kExchangeTooManyFiles = 2165;
constexpr int kExchangeTooManyQuestions = 2166;
constexpr int kExchangeEmptyQuestion = 2167;
constexpr int kExchangeMarkupLeftOut = 2168;
constexpr int kExchangeLinesJoined = 2169;
constexpr int kExchangeEssayLeftOut = 2170;
constexpr int kExchangeOralLeftOut = 2171;
constexpr int kExchangeOralBecomesEssay = 2172;
constexpr int kExchangeNoOptions = 2173;
constexpr int kExchangeNoOptionsBecomesEssay = 2174;
constexpr int kExchangeNoneRight = 2175;
constexpr int kExchangeSeveralRight = 2176;
constexpr int kExchangeFillInLeftOut = 2177;
constexpr int kExchangeNoAnswerBecomesEssay = 2178;
constexpr int kExchangeBlanksBecomeEssay = 2179;
constexpr int kExchangeFilesLeftOut = 2180;
constexpr int kExchangeModelAnswerLeftOut = 2181;
constexpr int kExchangeTitleLeftOut = 2182;
constexpr int kExchangeScoresLeftOut = 2183;
constexpr int kExchangeShuffleLeftOut = 2184;
constexpr int kExchangeFileNotKept = 2185;
constexpr int kExchangeSourceTooLarge = 2186;
constexpr int kExchangeEncodingGuessed = 2187;
constexpr int kExchangePartNotRead = 2188;
constexpr int kExchangeNoRightRead = 2189;
constexpr int kExchangePartlyRight = 2190;
constexpr int kExchangePartlyRightAnswer = 2191;
constexpr int kExchangeMatching = 2192;
constexpr int kExchangeTrue = 2193;
constexpr int kExchangeFalse = 2194;
constexpr int kExchangeDescription = 2195;
constexpr int kExchangeNotFetched = 2196;
constexpr int kExchangeFeedback = 2197;
constexpr int kExchangeTolerance = 2198;
constexpr int kExchangeNoHeader = 2199;
constexpr int kExchangeKindNotKnown = 2200;
constexpr int kExchangePoints = 2201;
constexpr int kExchangeAnswer = 2202;
constexpr int kExchangeTypeNotRead = 2203;  // %1 is the type, %2 the begin of the text
constexpr int kExchangeDamaged = 2204;
constexpr int kExchangePictureMoved = 2205;
constexpr int kExchangeOtherCategory = 2206;
constexpr int kExchangePartMissing = 2207;
constexpr int kExchangeArrowReplaced = 2208;
constexpr int kExchangeOwnScoring = 2209;
constexpr int kExchangeTagsLeftOut = 2210;
constexpr int kExchangeInlineChoices = 2211;
constexpr int kExchangeEntities = 2212;
constexpr int kExchangeQuestions = 2270;  // %1 are their numbers, %2 what is told of them
constexpr int kExchangeNotOpen = 2271;    // "%1 cannot be read: %2", with what the system says
constexpr int kExchangeIsExam = 2272;
constexpr int kExchangeNoFormat = 2273;
constexpr int kExchangeNothingRead = 2274;  // %2 is the name of a format
constexpr int kExchangeExportEntry = 2275;
constexpr int kExchangeImportEntry = 2276;
constexpr int kExchangeExport = 2277;  // captions of the two windows
constexpr int kExchangeImport = 2278;
constexpr int kExchangeFormat = 2279;
constexpr int kExchangePurpose = 2280;
constexpr int kExchangeLosses = 2281;  // %1 is the name of a format
constexpr int kExchangeNoLosses = 2282;
constexpr int kExchangeLossPlaces = 2283;  // columns of the losses
constexpr int kExchangeLossTexts = 2284;
constexpr int kExchangeWhole = 2285;  // in the column of the questions
constexpr int kExchangeFile = 2286;
constexpr int kExchangeChooseFile = 2287;
constexpr int kExchangeDoExport = 2288;
constexpr int kExchangeExportAnyway = 2289;
constexpr int kExchangeWriting = 2290;
constexpr int kExchangeWritten = 2291;
constexpr int kExchangeNotWritten = 2292;
constexpr int kExchangeTargetIsExam = 2293;
constexpr int kExchangeNoTarget = 2294;
constexpr int kExchangeReplaceAsk = 2295;
constexpr int kExchangeEmptyExam = 2296;
constexpr int kExchangeHoldsNothing = 2297;  // %1 is the name of a format
constexpr int kExchangeLossesChanged = 2298;
constexpr int kExchangeReading = 2299;
constexpr int kFormatMoodle = 2300;  // formats and what they are for
constexpr int kFormatMoodlePurpose = 2301;
constexpr int kFormatQti = 2302;
constexpr int kFormatQtiPurpose = 2303;
constexpr int kFormatCanvas = 2304;
constexpr int kFormatCanvasPurpose = 2305;
constexpr int kFormatAiken = 2306;
constexpr int kFormatAikenPurpose = 2307;
constexpr int kFormatCsv = 2308;
constexpr int kFormatCsvPurpose = 2309;
constexpr int kFormatTsv = 2310;
constexpr int kFormatTsvPurpose = 2311;
constexpr int kFormatGift = 2312;
constexpr int kFormatGiftPurpose = 2313;
constexpr int kFormatMarkdown = 2314;
constexpr int kFormatMarkdownPurpose = 2315;
constexpr int kExchangeFilter = 2316;  // a file filter
constexpr int kExchangeInsert = 2317;
constexpr int kExchangeFound = 2318;  // %2 is the name of a format
constexpr int kExchangeReadLosses = 2319;
constexpr int kExchangeNothingLost = 2320;
constexpr int kExchangeHeaderStays = 2321;
constexpr int kExchangeCameIn = 2322;  // %3 are the numbers in the exam
constexpr int kStepExchange = 2323;

// The bank of all exams
constexpr int kBankBusy = 2330;
constexpr int kBankNoSpace = 2331;
constexpr int kBankNotWritable = 2332;
constexpr int kBankNotAnIndex = 2333;
constexpr int kBankDamaged = 2334;
constexpr int kBankNoFolder = 2335;
constexpr int kBankOtherProblem = 2336;
constexpr int kBankOlder = 2337;
constexpr int kBankNewer = 2338;
constexpr int kBankEndsEarly = 2339;
constexpr int kBankEndsEarlyAll = 2340;
constexpr int kBankNoExam = 2341;
constexpr int kBankUnreadable = 2342;
constexpr int kBankTooMuch = 2343;
constexpr int kBankFolderGone = 2344;

// Tags of questions. %1 is a file, %2 a reason
constexpr int kTagsDamaged = 2390;
constexpr int kTagsNewer = 2391;
constexpr int kTagsNotRead = 2392;
constexpr int kTagsNotWritten = 2393;
constexpr int kTagsBusy = 2394;

// Drawing from the bank: what is said of a drawn question, and of what was excluded
constexpr int kDrawnAmong = 2400;
constexpr int kDrawnNeverUsed = 2401;  // or nobody knows when
constexpr int kDrawnLastUsed = 2402;   // %1 is a day
constexpr int kDrawnInExams = 2403;
constexpr int kDrawFound = 2404;  // %1 of %2 questions
constexpr int kDrawOtherKind = 2405;
constexpr int kDrawOtherTags = 2406;
constexpr int kDrawUsedSince = 2407;
constexpr int kDrawRejected = 2408;
constexpr int kDrawInOpenExam = 2409;
constexpr int kDrawNearlyDrawn = 2410;
constexpr int kDrawOtherWish = 2411;
constexpr int kExchangeOneOptionBecomesEssay = 2213;
constexpr int kExchangeNoneRightBecomesEssay = 2214;
constexpr int kExchangeFileRenamed = 2215;  // %1 is the old name, %2 the new one
constexpr int kExchangeBlankScores = 2216;  // %1 is the score that it gets
constexpr int kExchangeNextQti = 2217;
constexpr int kExchangeIsPaper = 2580;  // %2 is the name of a format
// The window of the bank
constexpr int kBankEntry = 2430;
constexpr int kBankTitle = 2431;
constexpr int kBankWords = 2432;
constexpr int kBankWordsTip = 2433;
constexpr int kBankKind = 2434;
constexpr int kBankAllKinds = 2435;
constexpr int kBankWithFiles = 2436;
constexpr int kBankWithKey = 2437;
constexpr int kBankHits = 2438;
constexpr int kBankQuestion = 2439;
constexpr int kBankInsert = 2440;
constexpr int kBankShow = 2441;
constexpr int kBankOpenExam = 2442;
constexpr int kBankFolders = 2443;
constexpr int kBankFoldersTitle = 2444;
constexpr int kBankAddFolder = 2445;
constexpr int kBankRemoveFolder = 2446;
constexpr int kBankUnreadExams = 2447;
constexpr int kBankFolderUnread = 2448;
constexpr int kBankHeading = 2449;
constexpr int kBankFound = 2450;
constexpr int kBankFoundMany = 2451;
constexpr int kBankNothing = 2452;
constexpr int kBankNoFolders = 2453;
constexpr int kBankUpdating = 2454;
constexpr int kBankChanged = 2455;
// What a query of the bank can ask for: words with blanks between them
constexpr int kQueryNames = 2480;  // kind has tag exam folder after before score
constexpr int kQueryKinds = 2481;  // choice fillin essay oral
constexpr int kQueryParts = 2482;  // files key tags
// Tags in the window of the bank
constexpr int kBankTags = 2483;
constexpr int kBankTagsOfMany = 2484;
constexpr int kBankAddTag = 2485;
constexpr int kBankRemoveTag = 2486;
constexpr int kBankPutBackTag = 2487;   // that was removed
constexpr int kBankTakeBackTag = 2488;  // that was added
constexpr int kBankEarlierTags = 2489;
constexpr int kBankTakeOverTags = 2490;
constexpr int kBankKeepTagsAside = 2491;
constexpr int kBankTryTagsAgain = 2492;
constexpr int kBankTagsKeptAside = 2493;
constexpr int kBankSomeHaveTag = 2494;  // %1 is a tag
constexpr int kBankQueryHelp = 2495;
constexpr int kBankTagTooLong = 2496;
constexpr int kBankNoContentNoTags = 2497;
constexpr int kBankTagsNotWritten = 2498;  // %1 are tags; the reason follows

// The window that draws from the bank
constexpr int kDrawOtherFolder = 2500;
constexpr int kDrawnLastUsedIn = 2501;  // %1 is a day, %2 an exam
constexpr int kDrawEntry = 2502;
constexpr int kDrawTitle = 2503;
constexpr int kDrawOfBank = 2504;  // a button
constexpr int kDrawHowMany = 2505;
constexpr int kDrawKind = 2506;
constexpr int kDrawAnyKind = 2507;
constexpr int kDrawTags = 2508;
constexpr int kDrawWithout = 2509;
constexpr int kDrawSpread = 2510;
constexpr int kDrawTagsTip = 2511;
constexpr int kDrawSpreadTip = 2512;
constexpr int kDrawAddWish = 2513;
constexpr int kDrawRemoveWish = 2514;
constexpr int kDrawAnyTime = 2515;
constexpr int kDrawNotUsedSince = 2516;  // before a day
constexpr int kDrawUsed = 2517;
constexpr int kDrawFolder = 2518;
constexpr int kDrawAllFolders = 2519;
constexpr int kDrawLeaveOut = 2520;
constexpr int kDrawNow = 2521;  // a button
constexpr int kDrawRunning = 2522;
constexpr int kDrawColumnQuestion = 2523;
constexpr int kDrawColumnFrom = 2524;
constexpr int kDrawColumnWhy = 2525;
constexpr int kDrawExchange = 2526;
constexpr int kDrawExchangeTip = 2527;
constexpr int kDrawRemove = 2528;
constexpr int kDrawBack = 2529;
constexpr int kDrawBackTip = 2530;
constexpr int kDrawInsert = 2531;
constexpr int kDrawWishName = 2532;  // a wish: how many of what kind
constexpr int kDrawForWish = 2533;   // %1 is a wish, %2 what is said of it
constexpr int kDrawDone = 2534;      // %2 is the seed
constexpr int kDrawNothing = 2535;
constexpr int kDrawCancelled = 2536;
constexpr int kDrawNoOther = 2537;
constexpr int kDrawGone = 2538;
constexpr int kDrawStays = 2539;
constexpr int kDrawNoFolders = 2540;
constexpr int kDrawChanged = 2541;
constexpr int kDrawBadSeed = 2542;
constexpr int kDrawBadTag = 2543;
constexpr int kDrawReport = 2544;
constexpr int kStepDraw = 2545;
constexpr int kDrawList = 2546;

}  // namespace quorvantis::text_id
