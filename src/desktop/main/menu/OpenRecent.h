// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/menu/MenuBar.h"
#include "editor/ExamEditor.h"
#include "shell/settings/RecentExams.h"

#include <filesystem>
#include <vector>

namespace quorvantis {

/// The menu of the exams that were opened or saved last.
class OpenRecent {
 public:
  /// The editor must outlive this.
  explicit OpenRecent(ExamEditor& editor) : editor_(editor) {}

  /// From now on exams are kept in `exams`, which must outlive this; until then the menu is empty.
  void KeepIn(const RecentExams& exams) { exams_ = &exams; }

  /// Puts the exam being edited at the top, if it has a file. Call when the name of the exam may have
  /// changed.
  void Note();

  bool IsEmpty() const;
  std::vector<MenuEntry> Entries();

 private:
  void Open(const std::filesystem::path& file);

  ExamEditor& editor_;
  const RecentExams* exams_ = nullptr;
  std::filesystem::path noted_;
};

}  // namespace quorvantis
