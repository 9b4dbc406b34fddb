// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LanguageLibraries.h"

#include <QIcon>

namespace quorvantis {

/// The pictures of the window, by resource name ("207", "NextQuestionU"). A language may bring pictures of
/// its own; what it lacks comes from the set that is built in.
///
/// Arrows are drawn for languages that run from left to right, in every library: where the language runs the
/// other way the buttons change them for each other.
class Pictures {
 public:
  /// `library` may be null, else it must outlive this.
  explicit Pictures(const LanguageLibrary* library = nullptr) : library_(library) {}

  /// Holds the bitmaps for one and for two screen pixels to a layout pixel; null when there is no such
  /// picture.
  QIcon Picture(const QString& name) const;

 private:
  QPixmap Bitmap(const QString& name, int scale) const;

  const LanguageLibrary* library_;
};

/// The icon of the program.
inline constexpr const char* kProgramIcon = "128";

}  // namespace quorvantis
