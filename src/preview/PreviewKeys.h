// SPDX-License-Identifier: MIT
#pragma once

#include "preview/PreviewWindow.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

namespace quorvantis {

/// Sees to it that each key goes to what the user sees when pressing it, while previews come and go. Escape
/// leaves a preview before its page sees the key, and calls off a print that has not asked for its printer
/// yet. In the main window it would end the program; so it takes a second without Escape before one counts
/// there again.
class PreviewKeys : public QObject {
 public:
  PreviewKeys();

  /// From now on `window` is the one that shows or prints.
  void Watch(PreviewWindow& window);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakesEscape();
  bool IsMeantForPreview() const;
  bool IsImpatient() const;
  void NoteEscape();
  QWidget* WindowFor(const QObject& watched) const;

  QPointer<PreviewWindow> window_;
  QElapsedTimer sinceEscape_;     ///< that a preview took, or since one closed in another way
  QPointer<QWidget> dialogThen_;  ///< that was open at that time
};

}  // namespace quorvantis
