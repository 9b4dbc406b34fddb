// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/Formats.h"
#include "platform/StringTable.h"

#include <QTreeWidget>

#include <string>

namespace quorvantis {

/// The formats that can be written, each with a sentence that says what it is for and where the file goes.
class FormatList : public QTreeWidget {
  Q_OBJECT

 public:
  FormatList(const StringTable& strings, QWidget* parent);

  /// Chooses the format of that name; the first one if there is none.
  void Choose(const std::u16string& name);
  const FormatRow& Chosen() const;

 signals:
  void Changed();
};

}  // namespace quorvantis
