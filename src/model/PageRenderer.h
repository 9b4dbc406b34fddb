// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvantis {

/// How the pages of an exam are written. The document carries these settings from page to page; what they
/// lead to is in render/.
class PageRenderer {
 public:
  PageRenderer() = default;
  PageRenderer(const PageRenderer&) = default;
  PageRenderer& operator=(const PageRenderer&) = default;
  virtual ~PageRenderer() = default;

  void SetMediaSuppressed(int suppressed) { mediaSuppressed = suppressed; }
  void SetPrintLayout(int layout) { printLayout = layout; }
  void SetRenderOption(int option) { renderOption = option; }

  std::u16string
      studentIdText;        ///< number of the student, in the names of student folders; the editor has none
  int mediaSuppressed = 1;  ///< not 0: no media in the attachment pane, no recorder on the print page
  int printLayout = 0;      ///< 1 while the print page is built
  int allowVideoRecording = 0;  ///< what the oral recorder is told
  int renderOption = 1;         ///< the document's, for other programs; no page reads it
};

}  // namespace quorvantis
