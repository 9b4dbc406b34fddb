// SPDX-License-Identifier: MIT
// Drawing from the bank, and its window.
#pragma once

namespace quorvantis::text_id {

// What is said of a drawn question, and of what was excluded
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
constexpr int kDrawList = 2546;

}  // namespace quorvantis::text_id
