// SPDX-License-Identifier: MIT
#include "desktop/dialogs/DialogStyle.h"

#include <QApplication>

namespace quorvantis {

int DialogStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returned) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons && QApplication::isRightToLeft()) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

}  // namespace quorvantis
