// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <QWidget>

namespace quorvantis {

/// Asks whether a paper may be closed with the marks that were made in it. Enter and Escape keep it.
bool MayLoseMarks(const StringTable& strings, QWidget* parent);

}  // namespace quorvantis
