// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/ImportFailure.h"
#include "import/marking/ImportSettings.h"
#include "import/marking/RuleSearch.h"
#include "model/ExamPaper.h"
#include "platform/DebugOutput.h"
#include "text/TextSpan.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The kind of a question in a paper. True/false questions are stored as choice questions.
enum class ReadKind { Choice, TrueFalse, FillIn, Essay };

/// Where the parts of a question stand in the marked text; empty spans for what it lacks.
struct QuestionPlaces {
  TextSpan part;  ///< all between its marker and the next one
  TextSpan text;  ///< of group Q1 or Q2
  std::array<TextSpan, kOptionCount> options;
  TextSpan answer;  ///< its own, or the one in a block
};

/// A question as it was read: only the fields that an import writes into a slot.
struct ReadQuestion {
  ReadKind kind = ReadKind::Choice;
  std::u16string text;
  std::array<std::u16string, kOptionCount> options;  ///< of a choice or true/false question
  std::u16string letters;                            ///< of their answer, in upper case; see ReadPaper
  int mask = 0;
  std::u16string answer;  ///< of a fill-in or essay question
  std::u16string key;     ///< what the letters were taken from, as it stands in the paper
  QuestionPlaces places;
};

/// A part of the paper between two question markers that did not become a question.
struct DroppedPart {
  std::u16string_view key;  ///< of the rule that matched nothing in it
  std::u16string text;      ///< its beginning, in one line
  TextSpan place;           ///< in the marked text
};

/// An answer in a block that was given, by its order, to a question with a different number.
struct MisplacedAnswer {
  std::u16string_view key;  ///< of the rule that found it
  int number = 0;
  int question = 0;  ///< of the paper, from 1 on
};

/// What was read from a marked text.
struct ReadPaper {
  std::vector<ReadQuestion> questions;
  std::vector<DroppedPart> dropped;
  bool hasChoiceBlock = false;     ///< the answers of all choice questions are in one place
  bool hasJudgementBlock = false;  ///< those of all true/false questions are
  std::size_t choiceAnswers = 0;   ///< in these blocks
  std::size_t judgementAnswers = 0;
  std::vector<MisplacedAnswer> misplaced;  ///< the first one of each block
  std::optional<ImportFailure> failure;    ///< if set, there are no questions
};

/// Cuts a marked text into questions at its markers, and recognises their parts.
class QuestionTextParser {
 public:
  /// All must outlive the parser.
  QuestionTextParser(const ImportSettings& rules, DebugOutput& debug, const CancelHook& isCancelled)
      : rules_(rules), debug_(debug), isCancelled_(isCancelled) {}

  /// `firstPicture` is the number of the paper's first picture. The text ends at its first NUL.
  ReadPaper Parse(std::u16string_view markedText, int firstPicture) const;

 private:
  const ImportSettings& rules_;
  DebugOutput& debug_;
  const CancelHook& isCancelled_;
};

/// Writes the questions into slots from `firstSlot` on, as many as there are slots for. Other fields of these
/// slots stay unchanged. Returns the number of the slot after the last one written: at most 501.
int StoreQuestions(const ReadPaper& paper, ExamPaper& exam, int firstSlot);

}  // namespace quorvantis
