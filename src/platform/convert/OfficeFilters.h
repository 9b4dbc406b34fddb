// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>

namespace quorvantis {

/// `ImportFiltersOf` for Qt's texts.
QStringList ImportFilters(const QString& extension, QByteArrayView head);

}  // namespace quorvantis
