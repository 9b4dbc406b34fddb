// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperStudy.h"
#include "learn/UnfollowedMarks.h"
#include "platform/StringTable.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

#include <optional>
#include <vector>

namespace quorvantis {

/// The marks of a teacher, each with a button that takes it back. Hidden while there are none.
class MarksList : public QGroupBox {
  Q_OBJECT

 public:
  /// `strings` must outlive the list.
  MarksList(const StringTable& strings, QWidget* parent);

  /// `reasons` tells of marks that are not followed why; nothing while that is being worked out.
  void ShowStudy(const PaperStudy& study, const std::optional<std::vector<UnfollowedMark>>& reasons);

  void SetCompact(bool isCompact);

 signals:
  void TakeBack(std::size_t index);
  void Chosen(std::size_t index);

 private:
  void AddRow(QBoxLayout& rows, const PaperStudy& study, std::size_t index);
  QString ReasonOf(const PaperStudy& study, std::size_t index) const;
  QPushButton* MakeMark(const QString& line, const QString& reason, std::size_t index);
  QToolButton* MakeTakeBack(const QString& line, std::size_t index);

  const StringTable& strings_;
  QScrollArea* area_;
  std::optional<std::vector<UnfollowedMark>> reasons_;
};

}  // namespace quorvantis
