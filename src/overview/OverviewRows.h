// SPDX-License-Identifier: MIT
// What an overview shows of an exam: a row for each question.
#pragma once

#include "model/QuestionKinds.h"
#include "model/document/FrameSetExam.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// What a question lacks.
struct MissingParts {
  bool text = false;
  bool key = false;  ///< no right answer, or no model answer; never of oral questions
  bool options =
      false;           ///< fewer than two have a text, or one without a text is ticked or followed by others
  bool files = false;  ///< an attached file has no content

  bool Any() const { return text || key || options || files; }
  bool operator==(const MissingParts&) const = default;
};

struct OverviewRow {
  int number = 0;  ///< 1 to 500
  QuestionKind kind = QuestionKind::Choice;
  std::u16string firstLine;         ///< of the text, without blanks around it, at most 250 units
  std::u16string key;               ///< "A C", the fill-in answers, or the first line of the model answer
  std::optional<float> score = {};  ///< nothing while all questions have the same score
  int files = 0;
  MissingParts missing = {};

  bool operator==(const OverviewRow&) const = default;
};

/// Which questions to show. Conditions that are set must all hold.
struct OverviewFilter {
  std::u16string text = {};  ///< occurs in the question's text, options or answers, in any case of letters
  std::optional<QuestionKind> kind = {};
  bool withoutKey = false;
  bool withFiles = false;
};

/// An exam with one question as it would be after storing the form.
struct OverviewSource {
  const FrameSetExam& exam;
  int lastQuestion = 0;  ///< the last one to show
  int editedNumber = 0;  ///< of `edited`, which is shown even after the last one; 0 if there is none
  ExamQuestion edited = {};

  const ExamQuestion& Question(int number) const {
    return number == editedNumber ? edited : exam.Question(number);
  }
};

/// The rows of all questions that the filter lets through, by number. Looks whether attached files exist.
std::vector<OverviewRow> OverviewRows(const OverviewSource& source, const OverviewFilter& filter = {});

}  // namespace quorvantis
