// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// Where a teacher wants questions to go.
struct ImportWish {
  enum class Where { BehindLast, From, NewExam };
  Where where = Where::BehindLast;
  int from = 1;  ///< for From: the number that the first one gets, 1 to 500
};

/// What that does to an exam.
struct ForeseenImport {
  bool isNewExam = false;
  int first = 1;              ///< number of the first imported question; 501 if the exam is full
  int written = 0;            ///< how many there is room for
  int leftOut = 0;            ///< how many there is none for
  std::vector<int> replaced;  ///< numbers of the questions that will be gone, ascending
};

/// Foresees an import of `questions` questions into `exam`, which holds everything that is typed.
ForeseenImport ForeseeImport(const ExamPaper& exam, int questions, const ImportWish& wish);

/// The same in words, one line.
std::u16string ForeseenImportText(const ForeseenImport& place, const StringTable& strings);

}  // namespace quorvantis
