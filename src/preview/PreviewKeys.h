// SPDX-License-Identifier: MIT
#pragma once

#include "preview/KeyboardReturn.h"
#include "preview/PreviewWindow.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

namespace quorvantis {

/// Makes each key go to what the user sees when pressing it, while previews come and go. Escape leaves a
/// preview before its page sees the key, and cancels a print that has not asked for its printer yet. In the
/// main window it would end the program, so there it counts again only after a second without Escape.
class PreviewKeys : public QObject {
 public:
  PreviewKeys();

  /// From now on `window` is the one that shows or prints.
  void Watch(PreviewWindow& window);

  /// A preview goes, and the keyboard belongs to what was below it.
  void Uncover(const PreviewWindow& window);

  /// Whether a dialog that opens by itself would take keys that are not meant for it: the user is typing, or
  /// in a menu or another dialog. Typing does not count in a preview, which takes no text.
  bool IsUserBusy() const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakesEscape();
  bool IsMeantForPreview() const;
  bool IsImpatient() const;
  void NoteEscape();
  void NoteTyping(const QEvent& event);
  QWidget* WindowFor(const QObject& watched) const;
  bool IsOfLeft(const QObject& watched) const;

  QPointer<PreviewWindow> window_;
  QPointer<PreviewWindow> left_;  ///< the last one that the user left
  KeyboardReturn keyboardReturn_;
  QElapsedTimer sinceTyping_;
  QElapsedTimer sinceEscape_;     ///< taken by a preview, or since one closed in another way
  QPointer<QWidget> dialogThen_;  ///< that was open at that time
};

}  // namespace quorvantis
