// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace quorvantis {

/// The desktop's style, except for drawing faults of Qt. In right-to-left windows, the caption of a dialog
/// button with an icon runs onto the edge: there such buttons have no icons. On dark desktops, the edges of
/// boxes, radio buttons and fields are darker than their ground, and hints in empty fields may be black:
/// there they get the edge of those in the main window, and hints the colour of texts, faded.
class DialogStyle : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::polish;
  void polish(QPalette& palette) override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace quorvantis
