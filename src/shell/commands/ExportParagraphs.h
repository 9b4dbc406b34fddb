// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "platform/StringTable.h"

#include <string>
#include <vector>

namespace quorvantis {

/// The content of an exam on paper, one text per paragraph: title, scores, questions with options and typed
/// answers, but without ticked letters, attached files and the random mode. Call after CountQuestions.
std::vector<std::u16string> ExportParagraphs(const ExamPaper& exam, const StringTable& strings);

}  // namespace quorvantis
