// SPDX-License-Identifier: MIT
#pragma once

#include <QCompleter>

namespace quorvantis {

/// Completes the last tag of a line of them (TypedTags.h).
class TagCompleter : public QCompleter {
  Q_OBJECT

 public:
  /// The line belongs to it, and is its parent.
  TagCompleter(const QStringList& tags, QObject* parent);

  QStringList splitPath(const QString& path) const override;
  QString pathFromIndex(const QModelIndex& index) const override;
};

}  // namespace quorvantis
