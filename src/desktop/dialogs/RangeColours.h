// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

namespace quorvantis {

/// The colour of a score range, 1 to 10, in windows of that palette; 0 is for questions without a range.
/// Neighbours differ clearly.
QColor RangeColour(int range, const QPalette& palette);

/// The colour of text on it.
QColor TextColourOn(const QColor& background);

}  // namespace quorvantis
