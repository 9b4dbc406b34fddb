// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// What an exam says on paper, one text a paragraph: title, scores, questions with options and typed answers.
/// Call after CountQuestions. Ticked letters, attached files and the random mode are no part of it.
std::vector<std::u16string> ExportParagraphs(const ExamPaper& exam, const StringTable& strings);

}  // namespace quorvantis
