// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// What the score setup needs of the window that opened it.
class SetupOwner {
 public:
  virtual ~SetupOwner() = default;

  /// Not 0: shows the preview of the exam as it is, while the setup stays open. 0: a preview that is still
  /// there goes, and a fresh hidden one takes its place.
  virtual void PreviewFromSetup(int show) = 0;
};

}  // namespace quorvantis
