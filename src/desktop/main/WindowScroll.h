// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/layout/SizeLimits.h"

#include <QPointer>
#include <QScrollBar>
#include <QWidget>

namespace quorvantis {

/// Scrolls the controls of a window that is smaller than they need, which it is on small screens only; it has
/// no bars elsewhere. The wheel scrolls over the background, and what gets the focus by a key comes into
/// view.
class WindowScroll : public QObject {
  Q_OBJECT

 public:
  explicit WindowScroll(QWidget& window);

  const QWidget& Window() const { return window_; }

  /// Puts the bars where the window's size wants them. Gives the size of the area to place controls in.
  PixelSize Fit();

  /// Where the top left corner of the area is in the window, after Fit.
  QPoint Origin() const;

 signals:
  /// The origin is another one.
  void Scrolled();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Reveal(const QWidget* control);

  QWidget& window_;
  ScrolledView shown_;
  QPointer<QScrollBar> horizontal_;
  QPointer<QScrollBar> vertical_;
  QPointer<QWidget> corner_;
};

}  // namespace quorvantis
