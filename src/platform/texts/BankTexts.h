// SPDX-License-Identifier: MIT
// The bank of all exams: its index, tags, queries and window.
#pragma once

namespace quorvantis::text_id {

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
constexpr int kBankViews = 2460;
constexpr int kBankAsText = 2461;
constexpr int kBankAsPage = 2462;
constexpr int kBankAsPageTip = 2463;
constexpr int kBankPageComes = 2464;

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
constexpr int kBankUndoElsewhere = 2611;   // %1 is what the button does; %2 the question, which is not chosen

}  // namespace quorvantis::text_id
