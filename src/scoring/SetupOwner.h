// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// What the score setup needs of the window that opened it.
class SetupOwner {
 public:
  virtual ~SetupOwner() = default;

  /// Not 0: shows the preview of the exam as it is, while the setup stays open. 0: closes a preview that is
  /// still open and creates a new hidden one.
  virtual void PreviewFromSetup(int show) = 0;
};

}  // namespace quorvantis
