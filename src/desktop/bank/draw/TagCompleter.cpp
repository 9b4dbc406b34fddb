// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/TagCompleter.h"

#include "bank/tags/TypedTags.h"
#include "desktop/controls/QtText.h"

#include <QLineEdit>

namespace quorvantis {
namespace {

/// Where the last tag of a line is typed.
TextSpan LastOf(std::u16string_view line) {
  return TypedTagsIn(line).back();
}

}  // namespace

TagCompleter::TagCompleter(const QStringList& tags, QObject* parent) : QCompleter(tags, parent) {
  setCaseSensitivity(Qt::CaseInsensitive);
}

QStringList TagCompleter::splitPath(const QString& path) const {
  const std::u16string line = FromQString(path);
  return {ToQString(TypedTag(LastOf(line).Of(line)))};
}

QString TagCompleter::pathFromIndex(const QModelIndex& index) const {
  const auto* line = qobject_cast<const QLineEdit*>(widget());
  std::u16string typed = line == nullptr ? std::u16string() : FromQString(line->text());
  typed.resize(LastOf(typed).begin);
  if (!typed.empty()) typed += u' ';
  return ToQString(typed + TypedFormOf(FromQString(QCompleter::pathFromIndex(index))));
}

}  // namespace quorvantis
