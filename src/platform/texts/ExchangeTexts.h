// SPDX-License-Identifier: MIT
// What a conversion to or from the files of learning systems tells, and its windows. With the number of the
// question in %1 of the first one, the others begin in lower case.
#pragma once

namespace quorvantis::text_id {

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
constexpr int kExchangeFarTooMany = 2600;  // %1 is how many are read of a file
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
constexpr int kExchangeOneOptionBecomesEssay = 2213;
constexpr int kExchangeNoneRightBecomesEssay = 2214;
constexpr int kExchangeFileRenamed = 2215;  // %1 is the old name, %2 the new one
constexpr int kExchangeBlankScores = 2216;  // %1 is the score that it gets
constexpr int kExchangeNextQti = 2217;
constexpr int kExchangeAmbiguousRight = 2605;  // %1 is a cell, %2 the letter of the option that is right
constexpr int kExchangeIsPaper = 2580;         // %2 is the name of a format

// Errors, and the windows for import and export
constexpr int kExchangeNotOpen = 2271;  // "%1 cannot be read: %2", with what the system says
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
constexpr int kExchangeFilter = 2316;  // a file filter
constexpr int kExchangeInsert = 2317;
constexpr int kExchangeFound = 2318;  // %2 is the name of a format
constexpr int kExchangeReadLosses = 2319;
constexpr int kExchangeNothingLost = 2320;
constexpr int kExchangeHeaderStays = 2321;
constexpr int kExchangeCameIn = 2322;  // %3 are the numbers in the exam

// Formats and what they are for
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

}  // namespace quorvantis::text_id
