// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace quorvantis {

/// The text of an attached text file: UTF-8 or UTF-16 by its mark, UTF-8 without a mark if it is valid,
/// otherwise the Chinese code page GB18030, in which most such files were written.
QString DecodeAttachedText(const QByteArray& bytes);

}  // namespace quorvantis
