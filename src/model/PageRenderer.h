// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// Writes question rows and the score table as HTML. The document carries its settings, so that every page of
/// an exam is written alike.
class PageRenderer {
 public:
  void SetRenderOption(int option) { renderOption_ = option; }
  int RenderOption() const { return renderOption_; }

 private:
  int renderOption_ = 0;
};

}  // namespace quorvantis
