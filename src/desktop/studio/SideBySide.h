// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/studio/PaperView.h"
#include "learn/RoleLookup.h"

#include <QTableView>

namespace quorvantis {

/// Keeps a paper and the list of its questions together: the two scroll together, and what is chosen in one
/// is chosen in the other.
class SideBySide : public QObject {
  Q_OBJECT

 public:
  /// Both must outlive this; the list has its model.
  SideBySide(PaperView& paper, QTableView& questions, QObject* parent);

  /// The two show a study from now on, which must stay as it is until the next call. The chosen question
  /// stays chosen.
  void ShowStudy(const PaperStudy& study);

  /// Nothing is shown.
  void Clear();

 private:
  void ChooseQuestion(int row);
  void ChoosePlace(std::size_t place);
  void FollowPaper();
  void FollowQuestions();
  void Select(int row);

  PaperView& paper_;
  QTableView& questions_;
  RoleLookup lookup_;
  bool isFollowing_ = false;  ///< one of the two is moved by the other
};

}  // namespace quorvantis
