// SPDX-License-Identifier: MIT
#include "desktop/controls/OwnDirection.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool HasDirection(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar unit) { return unit.isLetter(); });
}

}  // namespace

/// What has no letters goes with the window.
void OwnDirection::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (HasDirection(option->text))
    option->direction = option->text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

}  // namespace quorvantis
