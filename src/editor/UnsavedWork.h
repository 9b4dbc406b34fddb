// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// What becomes of an exam that the editor is about to leave.
enum class Parting {
  Stay,    ///< the user goes on editing it
  Leave,   ///< it goes; whatever has not been saved was not given up
  GiveUp,  ///< it goes, and the user does not want what has not been saved
};

/// Keeps safe what has not been saved. The file commands tell it what becomes of the exam.
class UnsavedWork {
 public:
  virtual ~UnsavedWork() = default;

  /// The file holds the exam as it is now.
  virtual void Saved() = 0;

  /// The exam is about to be emptied or to end; `parting` is not Stay. Its work copies are still there.
  virtual void Left(Parting parting) = 0;

  /// Another exam is there, a new one or one that has been opened.
  virtual void Entered() = 0;
};

}  // namespace quorvantis
