// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperStudy.h"
#include "platform/StringTable.h"

#include <QListWidget>

namespace quorvantis {

/// What to look at in a paper as a whole, then what was understood of it. A warning about a part of the paper
/// leads there.
class FindingsList : public QListWidget {
  Q_OBJECT

 public:
  /// `strings` must outlive the list.
  FindingsList(const StringTable& strings, QWidget* parent);

  void ShowStudy(const PaperStudy& study);
  void SetCompact(bool isCompact);

 signals:
  /// The user has chosen a warning about this part of the paper.
  void PlaceChosen(TextSpan place);

 private:
  void AddWarnings(const PaperStudy& study);
  void Choose(const QListWidgetItem* item);

  const StringTable& strings_;
  std::vector<std::optional<TextSpan>> places_;  ///< of the rows
};

}  // namespace quorvantis
