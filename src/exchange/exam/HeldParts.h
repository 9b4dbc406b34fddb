// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/ExchangeNotes.h"
#include "exchange/form/ExchangedExam.h"

#include <cstddef>
#include <string_view>

namespace quorvantis {

enum class HeldText {
  OneLine,     ///< plain characters
  PlainLines,  ///< with line breaks
  Markup,      ///< with all that Markup.h converts
};

/// What a format can hold. What is left unsaid it cannot.
struct HeldParts {
  HeldText texts = HeldText::Markup;
  std::size_t fewestOptions = 1;  ///< of a choice
  bool severalRight = false;      ///< more than one right option
  bool noneRight = false;         ///< no right option
  bool fillIn = false;            ///< questions with alternative answers
  bool arrows = true;             ///< "->" in answers
  bool equalAnswers = true;       ///< the same answer twice in one blank
  bool severalBlanks = false;     ///< an answer for each blank
  bool emptyBlanks = false;       ///< some of these without an answer
  bool blankScores = true;        ///< any score for these; otherwise whole numbers for each blank
  bool essay = false;
  bool modelAnswer = false;
  bool oral = false;
  bool unanswered = false;  ///< choice questions without options, and fill-in questions without answers
  bool noText = false;      ///< questions that have files, options or answers only
  bool files = false;
  bool fileNames = true;  ///< any names of files; otherwise without characters that mean something elsewhere
  bool scores = false;
  bool title = false;
  bool shuffle = false;                                  ///< that options are to be shuffled
  bool (*misreads)(std::u16string_view text) = nullptr;  ///< whether a plain text is taken for no question
};

/// What a format holds of an exam: what a writer gets, and what its reader must give back. What the format
/// cannot hold is told; something else stands in its place, or the question is left out.
ExchangedExam HeldExam(const HeldParts& held, ExchangedExam exam, ExchangeNotes& notes);

}  // namespace quorvantis
