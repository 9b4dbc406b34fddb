// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// What happens to an exam that the editor is about to leave.
enum class Parting {
  Stay,    ///< the user goes on editing it
  Leave,   ///< it is left; unsaved changes were not given up
  GiveUp,  ///< it is left, and the user discards unsaved changes
};

/// Keeps unsaved changes safe. The file commands report to it what happens to the exam.
class UnsavedWork {
 public:
  virtual ~UnsavedWork() = default;

  /// The file now equals the exam.
  virtual void Saved() = 0;

  /// The exam is about to be emptied or closed; `parting` is not Stay. Its work copies still exist.
  virtual void Left(Parting parting) = 0;

  /// Another exam has begun, either new or opened.
  virtual void Entered() = 0;
};

}  // namespace quorvantis
