// SPDX-License-Identifier: MIT
// What was worked out about a paper, and warnings about what was read of it.
#pragma once

namespace quorvantis::text_id {

// How sure the rules are, in percent.
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

}  // namespace quorvantis::text_id
