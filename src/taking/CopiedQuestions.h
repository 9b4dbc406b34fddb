// SPDX-License-Identifier: MIT
// The forms in which questions leave the exam: as an exam file, as plain text and as formatted text.
#pragma once

#include "editor/WholeQuestion.h"
#include "model/document/ExamServices.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace quorvantis {

/// A question with the number that it has in its exam.
struct CopiedQuestion {
  int number = 0;
  WholeQuestion whole = {};
};

/// Writes an exam of these questions, numbered from 1 on, with their attached files. `title` is that of the
/// exam they come from. A question that a file could not hold otherwise gets a text saying that it has none.
std::error_code WriteQuestionsFile(const ExamServices& services, const std::u16string& title,
                                   const std::vector<CopiedQuestion>& questions,
                                   const std::filesystem::path& file);

/// The bytes of all attached files together.
std::uint64_t AttachedBytes(const std::vector<CopiedQuestion>& questions);

/// An attached file that should have content but does not exist.
struct MissingFile {
  int question = 0;          ///< the number in the exam
  std::u16string name = {};  ///< the display name
};

/// The first one, which a copy can only have without its content.
std::optional<MissingFile> FirstMissingFile(const std::vector<CopiedQuestion>& questions);

/// What students see of the questions: numbers, texts and options, but no answers. Lines end in LF.
std::u16string QuestionsAsText(const std::vector<CopiedQuestion>& questions);

/// The same as an HTML document.
std::u16string QuestionsAsHtml(const std::vector<CopiedQuestion>& questions);

}  // namespace quorvantis
