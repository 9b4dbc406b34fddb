// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LanguageLibraries.h"

#include <QIcon>

namespace quorvantis {

/// The pictures of the window, by resource name ("207", "NextQuestionU"). A language may bring its own
/// pictures; what it lacks is built in.
///
/// Every library's arrows are drawn for left-to-right languages; in right-to-left windows the buttons swap
/// them.
class Pictures {
 public:
  /// `library` may be null; otherwise it must outlive this.
  explicit Pictures(const LanguageLibrary* library = nullptr) : library_(library) {}

  /// The bitmaps for one and for two screen pixels per layout pixel; null if there is no such picture.
  QIcon Picture(const QString& name) const;

 private:
  QPixmap Bitmap(const QString& name, int scale) const;

  const LanguageLibrary* library_;
};

/// The icon of the program.
inline constexpr const char* kProgramIcon = "128";

}  // namespace quorvantis
