// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <QRadioButton>

namespace quorvantis {

/// Paints a button that is nothing but a caption on a plate, whatever class it is of. The plate of a checked
/// one has the colour of selections.
void PaintCaptionButton(QAbstractButton& button);

/// A push button that looks like the others of the window.
class CaptionButton : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

  /// What a button with this caption takes.
  QSize SizeFor(const QString& caption) const;

 protected:
  void paintEvent(QPaintEvent*) override { PaintCaptionButton(*this); }
};

/// One of several things to choose from: a radio button that looks the same and stays down. A group of
/// buttons has to see to it that only one is down; it can also have none down.
class ChoiceButton : public QRadioButton {
  Q_OBJECT

 public:
  ChoiceButton(const QString& caption, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent*) override { PaintCaptionButton(*this); }
  bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

}  // namespace quorvantis
