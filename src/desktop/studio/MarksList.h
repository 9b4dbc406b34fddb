// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperStudy.h"
#include "platform/StringTable.h"

#include <QGroupBox>
#include <QScrollArea>

namespace quorvantis {

/// The marks of a teacher, each with a button that takes it back. Hidden while there are none.
class MarksList : public QGroupBox {
  Q_OBJECT

 public:
  /// `strings` must outlive the list.
  MarksList(const StringTable& strings, QWidget* parent);

  void ShowStudy(const PaperStudy& study);

 signals:
  void TakeBack(std::size_t index);
  void Chosen(std::size_t index);

 private:
  QWidget* MakeRow(const PaperStudy& study, std::size_t index);

  const StringTable& strings_;
  QScrollArea* area_;
};

}  // namespace quorvantis
