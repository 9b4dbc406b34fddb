// SPDX-License-Identifier: MIT
// The steps of PreparationSteps.h, each in a file of its own. The examples show a text before and after.
#pragma once

#include "import/prepare/PreparationSteps.h"

namespace quorvantis {

namespace step {

/// Documents that are one paragraph with line breaks: a line break (VT) becomes the end of a paragraph.
void SoftBreaks(PaperText& text, const PreparationContext& context);

/// Around numbers and labels, blanks of all kinds become plain ones, and marks that nobody sees go. Line ends
/// of all kinds end lines.
///     U+200F 1. U+00A0 Why?       ->  1. Why?
void PlainSpaces(PaperText& text, const PreparationContext& context);

/// Options, or whole questions, in the cells of tables become lines; options without labels get some.
///     | Paris | Rome |            ->  ⟦A⟧ Paris
///                                     ⟦B⟧ Rome
void TableOptions(PaperText& text, const PreparationContext& context);

/// Letters of another script that look alike: a Latin "a)" before "б)" becomes a Cyrillic one.
void MixedLetters(PaperText& text, const PreparationContext& context);

/// Options that run down the columns come one below the other.
///     a. red    c. blue           ->  a. red, b. green, c. blue, d. grey, a line each
///     b. green  d. grey
void OptionColumns(PaperText& text, const PreparationContext& context);

/// Numbers of options that are written like those of questions become others: "1." before "1." and "2." is a
/// question with the options "①" and "②".
void NumberedOptions(PaperText& text, const PreparationContext& context);

/// A question whose number was forgotten, told by its options, gets one, and so does one whose number is
/// misread: "⟦3⟧" for "3," and "⟦1⟧" for "l.".
void ForgottenNumbers(PaperText& text, const PreparationContext& context);

/// Questions about the gaps of a text, which have options and nothing else, get their number as text.
///     7. A. went  B. go           ->  7. (7)
///                                     A. went  B. go
void ClozeStems(PaperText& text, const PreparationContext& context);

/// What is no part of the exam goes: page heads that repeat, "QuestionID 17", lines with sources, and, whole
/// and without the characters before it, what rule "Title" finds.
void Noise(PaperText& text, const PreparationContext& context);

/// Questions without numbers, told by blank lines or by their options, get numbers: "⟦1⟧".
void Unnumbered(PaperText& text, const PreparationContext& context);

/// Options without labels, a line each, get some: "⟦A⟧".
void PlainOptions(PaperText& text, const PreparationContext& context);

/// A misspelt label of an answer becomes the one that the paper uses.
///     Ansewr; B                   ->  Answer: B
void AnswerSlips(PaperText& text, const PreparationContext& context);

/// A key at the end, as a list, a table or ranges: each answer goes to its question, by its number.
///     1-3 ABC                     ->  ⟦=⟧ A at the end of question 1, and so on
void KeyAtEnd(PaperText& text, const PreparationContext& context);

/// A sign at the right option.
///     * B. Rome                   ->  B. Rome
///                                     ⟦=⟧ B
void SignedKey(PaperText& text, const PreparationContext& context);

/// The right option is bold, coloured, highlighted or underlined: "⟦=⟧ B" is put at the end of the question.
void EmphasisedKey(PaperText& text, const PreparationContext& context);

/// The letter of the right option stands in the stem; the blank stays for pupils.
///     The capital is ( B ).       ->  The capital is (   ).
///                                     ⟦=⟧ B
void KeyInStem(PaperText& text, const PreparationContext& context);

/// An answer that is a digit, a small letter, "c) text" or an option's text becomes a capital letter.
void KeyLetters(PaperText& text, const PreparationContext& context);

/// True/false questions get two options, and their answer a letter.
///     The sun is a star.          ->  The sun is a star.
///     Answer: T                       ⟦A⟧ T
///                                     ⟦B⟧ F
///                                     Answer: A
void Judgement(PaperText& text, const PreparationContext& context);

/// Blanks of all kinds in questions without options become "___".
void BlankForms(PaperText& text, const PreparationContext& context);

/// A text to read, between two questions, that the second one is about: it becomes the beginning of that
/// question.
void Passages(PaperText& text, const PreparationContext& context);

/// Questions without an answer get an empty one, since the reading of papers leaves out those that have none.
void OpenAnswers(PaperText& text, const PreparationContext& context);

}  // namespace step
}  // namespace quorvantis
