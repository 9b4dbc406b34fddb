// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace quorvantis {

/// The desktop's style, except for one drawing fault of Qt: in right-to-left windows, the caption of a dialog
/// button with an icon runs onto the edge. There such buttons have no icons.
class DialogStyle : public QProxyStyle {
  Q_OBJECT

 public:
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
};

}  // namespace quorvantis
