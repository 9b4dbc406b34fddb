// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvantis {

/// How the pages of an exam are written. The document carries these settings from page to page; render/ acts
/// on them.
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
      studentIdText;        ///< number of the student, used in names of student folders; empty in the editor
  int mediaSuppressed = 1;  ///< not 0: no media in the attachment pane, no recorder on the print page
  int printLayout = 0;      ///< 1 while the print page is built
  int allowVideoRecording = 0;  ///< passed to the oral recorder
  int renderOption = 1;         ///< copied from the document for other programs; no page uses it
};

}  // namespace quorvantis
