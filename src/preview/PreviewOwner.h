// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// What a preview window needs of the main window.
class PreviewOwner {
 public:
  virtual ~PreviewOwner() = default;

  /// With 0: a previewed exam was finished by its button, and one preview's prefixes are removed from the
  /// attachment paths (see FrameSetExam::PrefixAttachmentPaths).
  virtual void PrefixAttachmentPaths(int on) = 0;
};

}  // namespace quorvantis
