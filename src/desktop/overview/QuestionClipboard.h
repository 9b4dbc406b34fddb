// SPDX-License-Identifier: MIT
#pragma once

#include "taking/CopiedQuestions.h"

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis {

/// Copied questions on the clipboard: as an exam file with the attached files, as formatted text and as plain
/// text. Many desktops forget the clipboard of a program that has ended. So the exam file also stays in the
/// application folder; it is used as long as nothing else has been copied.
class QuestionClipboard {
 public:
  /// `services` must outlive this.
  explicit QuestionClipboard(const ExamServices& services);

  /// Puts the questions there. Returns why that is impossible, for the user; otherwise an empty text.
  std::u16string Copy(const std::u16string& title, const std::vector<CopiedQuestion>& questions);

  /// There is something that Paste might read.
  bool HasQuestions() const;

  /// Writes the copied exam file to `file`. False when there is none, or `file` cannot be written.
  bool SaveTo(const std::filesystem::path& file) const;

 private:
  const ExamServices& services_;
  std::filesystem::path kept_;
};

}  // namespace quorvantis
