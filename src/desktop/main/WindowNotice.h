// SPDX-License-Identifier: MIT
#pragma once

#include <QStyle>
#include <QWidget>

namespace quorvantis {

/// A line of text with an icon that stays in the window as long as its cause does. It takes no room from
/// other controls and does not interrupt typing.
class WindowNotice : public QWidget {
  Q_OBJECT

 public:
  WindowNotice(const char* name, QStyle::StandardPixmap icon, QWidget* parent);

  /// Shows `text`, with `details` as its tooltip. Screen readers announce it once, when it appears.
  void Tell(const QString& text, const QString& details);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QStyle::StandardPixmap icon_;
};

}  // namespace quorvantis
