// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace quorvantis {

/// A compiled-in picture, for example "toolbar/new.svg"; see desktop.qrc.
QIcon Picture(const QString& name);

}  // namespace quorvantis
