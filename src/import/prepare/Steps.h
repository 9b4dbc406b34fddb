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
