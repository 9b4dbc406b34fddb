// SPDX-License-Identifier: MIT
#include "desktop/StateBox.h"

namespace quorvantis {

void StateBox::ShowState(CheckState state) {
  setCheckState(state == CheckState::Off  ? Qt::Unchecked
                : state == CheckState::On ? Qt::Checked
                                          : Qt::PartiallyChecked);
}

}  // namespace quorvantis
