// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace quorvantis {

/// The desktop's style, but for one thing that Qt draws badly: where windows run from right to left, it puts
/// the caption of a dialog's button beside its icon onto the edge. There such buttons have no icons.
class DialogStyle : public QProxyStyle {
  Q_OBJECT

 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
};

}  // namespace quorvantis
