// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"
#include "platform/StringTable.h"

#include <QIcon>
#include <QString>
#include <QWidget>

namespace quorvantis {

/// The sign of a severity in the style of a widget. The signs differ in shape, not only in colour.
QIcon SeverityIcon(Severity severity, const QWidget& widget);

QString SeverityWord(Severity severity, const StringTable& strings);

}  // namespace quorvantis
