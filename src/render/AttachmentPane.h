// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"

#include <filesystem>
#include <string>

namespace quorvantis {

/// The right half of a preview: the files attached to the exam. Each document gets a frame; pictures and
/// media between two documents share one, whose page is written too; without a document all are shown in the
/// pane itself. Which frame shows which file is noted in the exam.
class AttachmentPane {
 public:
  /// `exam` must outlive the pane and keep its attachments meanwhile.
  explicit AttachmentPane(FrameSetExam& exam);

  void WriteAttachmentPane(const std::filesystem::path& page);

  /// Distributes the files over frames and returns the number of frames. Deliberate: a file without a frame
  /// keeps its old number, so a group or frame of that number may include it.
  int CountFrames();

  /// The frames or items of a pane with that many frames. Also writes the pages of groups.
  std::u16string BuildPaneBody(int frames);

 private:
  std::u16string Path(std::size_t slot) const { return exam_.PathOnPages(exam_.examAttachmentPaths[slot]); }
  std::u16string SingleFrame() const;
  std::size_t FindAttachmentOfFrame(int frame) const;
  std::u16string PaneItem(const std::u16string& path) const;
  std::u16string PaneItems(int k) const;
  std::u16string GroupPage(int frame);

  FrameSetExam& exam_;
  AttachmentPageWriter& writer_;
  std::size_t count_;  ///< files before the first empty path
};

/// The line for a frame that shows the file.
std::u16string FrameLine(std::u16string_view file);

}  // namespace quorvantis
