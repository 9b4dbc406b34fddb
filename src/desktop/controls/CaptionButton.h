// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <QRadioButton>

namespace quorvantis {

/// Paints a button of any class as a caption on a plate. The plate of a checked one has the selection colour.
void PaintCaptionButton(QAbstractButton& button);

/// A push button in the style of the window.
class CaptionButton : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

  /// The size of a button with this caption.
  QSize SizeFor(const QString& caption) const;

 protected:
  void paintEvent(QPaintEvent*) override { PaintCaptionButton(*this); }
};

/// One of several choices: a radio button that looks the same and stays down. Put these into a button group,
/// so that at most one is down.
class ChoiceButton : public QRadioButton {
  Q_OBJECT

 public:
  ChoiceButton(const QString& caption, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent*) override { PaintCaptionButton(*this); }
  bool hitButton(const QPoint& position) const override { return rect().contains(position); }
};

}  // namespace quorvantis
