// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <QStyle>
#include <QWidget>

#include <functional>

namespace quorvantis {

/// A line of text with an icon, perhaps with a button, that stays in the window as long as its cause does. It
/// takes no room from other controls and does not interrupt typing.
class WindowNotice : public QWidget {
  Q_OBJECT

 public:
  WindowNotice(const char* name, QStyle::StandardPixmap icon, QWidget* parent);

  /// Shows `text`, with `details` as its tooltip. Screen readers announce it once, when it appears.
  void Tell(const QString& text, const QString& details);

  /// Adds a button beside the text that runs `command`.
  void Offer(const QString& caption, std::function<void()> command);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// Where the text is, in the direction of English.
  QRect TextPlaceInside() const;

  QStyle::StandardPixmap icon_;
  QPushButton* offer_ = nullptr;
};

}  // namespace quorvantis
