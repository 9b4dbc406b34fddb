// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/QuestionTextParser.h"

namespace quorvantis {

/// The objects of a paper within a question; an exam keeps the first picture of the question's text alone.
struct UnkeptObjects {
  int textPictures = 0;
  int answerPictures = 0;  ///< in options or in an answer
  int formulas = 0;        ///< anywhere
};

UnkeptObjects ObjectsOf(const ReadQuestion& question);

}  // namespace quorvantis
