// SPDX-License-Identifier: MIT
// Pictures in a paper that has been read are texts like " 7.bmp ".
#pragma once

#include "model/ExamPaper.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// Whether an answer of the question shows a picture, which an exam cannot.
bool AnswersHavePictures(const ExamQuestion& question);

/// Whether an option does.
bool OptionsHavePictures(const ExamQuestion& question);

/// Whether the text of the question or of an answer contains the name of a picture.
bool ShowsPictures(const ExamQuestion& question);

/// Inserts `notice` after each picture in the question's answers.
void MarkAnswerPictures(ExamQuestion& question, std::u16string_view notice);

/// Whether a formula was left out of the question or its answers.
bool HasFormula(const ExamQuestion& question);

/// The number of formula places in the texts of the questions from `first` to `last`.
std::size_t CountFormulas(const ExamPaper& exam, int first, int last);

/// Removes the pictures from the question's text, and attaches the first one as its only attachment. Its name
/// comes from an untrusted document: whatever it is, the file is one in `workRoot`.
bool AttachTextPicture(ExamQuestion& question, const std::filesystem::path& workRoot);

}  // namespace quorvantis
