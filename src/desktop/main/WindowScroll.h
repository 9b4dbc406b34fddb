// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/layout/SizeLimits.h"

#include <QPointer>
#include <QScrollBar>
#include <QWidget>

namespace quorvantis {

/// Scrolls the controls in a client area that is smaller than they need, which happens on small screens only;
/// otherwise there are no bars. The wheel scrolls over the background, and a control that gets the focus by a
/// key is scrolled into view.
class WindowScroll : public QObject {
  Q_OBJECT

 public:
  explicit WindowScroll(QWidget& client);

  const QWidget& Client() const { return client_; }

  /// Places the bars for the current size. Returns the size of the area to place controls in.
  PixelSize Fit();

  /// The position of the area's top left corner in the client area, after Fit.
  QPoint Origin() const;

 signals:
  /// The origin has changed.
  void Scrolled();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Reveal(const QWidget* control);

  QWidget& client_;
  ScrolledView shown_;
  QPointer<QScrollBar> horizontal_;
  QPointer<QScrollBar> vertical_;
  QPointer<QWidget> corner_;
};

}  // namespace quorvantis
