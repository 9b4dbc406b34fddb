// SPDX-License-Identifier: MIT
// Pictures in a paper are texts like " 7.bmp " by the time it has been read.
#pragma once

#include "model/ExamPaper.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// Whether an answer of the question shows a picture, which an exam cannot.
bool AnswersHavePictures(const ExamQuestion& question);

/// Whether the question or an answer of it has the name of a picture in its text.
bool ShowsPictures(const ExamQuestion& question);

/// Puts `notice` behind each picture in the question's answers.
void MarkAnswerPictures(ExamQuestion& question, std::u16string_view notice);

/// Whether a formula was left out of the question or its answers.
bool HasFormula(const ExamQuestion& question);

/// How many places of formulas the texts of the questions from `first` to `last` have.
std::size_t CountFormulas(const ExamPaper& exam, int first, int last);

/// Takes the pictures out of the question's text, and attaches the first one as its only attachment. Its name
/// comes from a stranger's document: whatever it says, its file is one in `workRoot`.
bool AttachTextPicture(ExamQuestion& question, const std::filesystem::path& workRoot);

}  // namespace quorvantis
