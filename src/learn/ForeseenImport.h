// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "platform/StringTable.h"

#include <string>

namespace quorvantis {

/// Where a teacher wants questions to go.
struct ImportWish {
  enum class Where { BehindLast, From, NewExam };
  Where where = Where::BehindLast;
  int from = 1;  ///< for From: the number that the first one gets, 1 to 500, if the exam goes so far
};

/// What that does to an exam.
struct ForeseenImport {
  bool isNewExam = false;
  int first = 1;      ///< number of the first imported question; 501 if the exam is full
  int written = 0;    ///< how many there is room for
  int leftOut = 0;    ///< how many there is none for
  int lastMoved = 0;  ///< the questions from `first` to this one move up by `written`; 0 for none
};

/// The number of the last question that has a text, an answer or a file; 0 if there is none.
int LastWithContent(const ExamPaper& exam);

/// Foresees an import of `questions` questions into `exam`, which holds everything that is typed.
ForeseenImport ForeseeImport(const ExamPaper& exam, int questions, const ImportWish& wish);

/// The same in words, one line.
std::u16string ForeseenImportText(const ForeseenImport& place, const StringTable& strings);

}  // namespace quorvantis
