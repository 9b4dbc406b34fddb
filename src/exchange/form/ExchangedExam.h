// SPDX-License-Identifier: MIT
// An exam on its way between this program and the files of learning systems: plain data that every reader
// fills and every writer is given. Texts are exam texts: markup as authors write it, in the form that
// exchange/markup/Markup.h gives it, lines ended by CR LF.
#pragma once

#include "model/ExamQuestion.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// A file that belongs to a question. The file itself is owned by whoever made it.
struct ExchangedFile {
  std::u16string name;         ///< as users see it
  std::filesystem::path path;  ///< where its bytes are
};

struct ExchangedOption {
  std::u16string text;
  bool isRight = false;

  bool operator==(const ExchangedOption&) const = default;
};

/// The answers accepted in one blank.
using BlankAnswers = std::vector<std::u16string>;

struct ExchangedQuestion {
  int number = 0;  ///< in the exam or the file that it comes from, from 1 on
  QuestionKind kind = QuestionKind::Choice;
  std::u16string text;
  std::vector<ExchangedOption> options;
  /// Of a fill-in question: one entry if the answers are alternatives, otherwise one for each blank. Of these
  /// some may be empty.
  std::vector<BlankAnswers> blanks;
  std::u16string modelAnswer;
  std::vector<ExchangedFile> files;
  std::optional<double> score;  ///< nothing where the source has none
};

struct ExchangedExam {
  std::u16string title;
  bool shufflesOptions = false;
  std::vector<ExchangedQuestion> questions;
  bool isCutShort = false;  ///< its source has more questions than are read at all
};

}  // namespace quorvantis
