// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/TagCompleter.h"

#include "desktop/bank/draw/TypedOrder.h"
#include "desktop/controls/QtText.h"

#include <QLineEdit>

namespace quorvantis {
namespace {

/// The places behind the last comma and behind the blanks that follow it.
struct LastTag {
  explicit LastTag(const QString& line)
      : begin(static_cast<qsizetype>(FromQString(line).find_last_of(kTagCommas) + 1)), text(begin) {
    while (text < line.size() && line[text].isSpace()) ++text;
  }

  qsizetype begin;
  qsizetype text;
};

}  // namespace

TagCompleter::TagCompleter(const QStringList& tags, QObject* parent) : QCompleter(tags, parent) {
  setCaseSensitivity(Qt::CaseInsensitive);
}

QStringList TagCompleter::splitPath(const QString& path) const {
  return {path.mid(LastTag(path).text)};
}

QString TagCompleter::pathFromIndex(const QModelIndex& index) const {
  const auto* line = qobject_cast<const QLineEdit*>(widget());
  const QString before = line == nullptr ? QString() : line->text().left(LastTag(line->text()).begin);
  return before + (before.isEmpty() ? "" : " ") + QCompleter::pathFromIndex(index);
}

}  // namespace quorvantis
