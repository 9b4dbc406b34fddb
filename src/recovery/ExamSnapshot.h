// SPDX-License-Identifier: MIT
// All that an editor holds of an exam, as bytes: also what an exam file would cut or leave out, and what is
// typed and not stored. Attached files are named by the paths of their work copies.
#pragma once

#include "editor/ExamEditor.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

struct ExamSnapshot {
  std::string content;                ///< what ReadSnapshot takes
  std::vector<std::u16string> files;  ///< the work copies; one may stand here more than once
  /// A hash that differs when the content does.
  std::size_t state = 0;
  /// A hash that differs when the exam does. It stays while questions are only looked at, although that puts
  /// a question of another program into the form that the editor would store.
  std::size_t substance = 0;
};

/// The editor stays as it is: what is typed is stored into the snapshot alone. `expectedSize` is that of the
/// content, where one is known; it saves time.
ExamSnapshot TakeSnapshot(const ExamEditor& editor, std::size_t expectedSize = 0);

/// What a snapshot tells beside the exam.
struct SnapshotPlace {
  std::u16string fileName;
  int currentQuestion = 1;
};

/// Fills a document that has been reset. Nothing when the bytes are no snapshot; the document is to be reset
/// again then.
std::optional<SnapshotPlace> ReadSnapshot(std::string_view content, FrameSetExam& exam);

}  // namespace quorvantis
