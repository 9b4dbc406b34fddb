// SPDX-License-Identifier: MIT
#pragma once

#include "search/HitLine.h"

#include <QVariant>
#include <Qt>

namespace quorvantis {

/// What a list tells HitDelegate: where the hit stands in a line, in UTF-16 units, and whether the row looks
/// disabled. (A row that is disabled could not be reached by keys.)
enum HitRole { kHitStartRole = Qt::UserRole, kHitLengthRole, kDimmedRole };

/// The value of a line for the first two roles.
inline QVariant HitValue(const HitLine& line, int role) {
  return static_cast<int>(role == kHitStartRole ? line.start : line.length);
}

}  // namespace quorvantis
