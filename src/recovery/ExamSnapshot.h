// SPDX-License-Identifier: MIT
// Everything an editor holds of an exam, as bytes: including what an exam file would cut or leave out, and
// text that is typed but not stored. Attached files are named by the paths of their work copies.
#pragma once

#include "editor/ExamEditor.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

struct ExamSnapshot {
  std::string content;                ///< for ReadSnapshot
  std::vector<std::u16string> files;  ///< the work copies; may contain duplicates
  /// A hash that differs when the content does.
  std::size_t state = 0;
  /// A hash that differs when the exam does. Merely looking at questions does not change it, although that
  /// converts a question of another program to the form the editor would store.
  std::size_t substance = 0;
};

/// The editor does not change: unstored text goes into the snapshot only. `expectedSize` is that of the
/// content, if known; it saves time.
ExamSnapshot TakeSnapshot(const ExamEditor& editor, std::size_t expectedSize = 0);

/// What a snapshot holds besides the exam.
struct SnapshotPlace {
  std::u16string fileName;
  int currentQuestion = 1;
};

/// Fills a document that has been reset. Nothing when the bytes are not a snapshot; reset the document again
/// then.
std::optional<SnapshotPlace> ReadSnapshot(std::string_view content, FrameSetExam& exam);

}  // namespace quorvantis
