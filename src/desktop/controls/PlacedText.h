// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/QtText.h"
#include "platform/StringTable.h"
#include "text/MessageText.h"

namespace quorvantis {

/// A text of the table with Qt's places for values, "%1" and "%2".
inline QString PlacedText(const StringTable& strings, int id) {
  return ToQString(FillMessage(strings.Text(id), {u"%1", u"%2"}));
}

}  // namespace quorvantis
