// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"
#include "platform/StringTable.h"
#include "versions/plan/PinnedParts.h"
#include "versions/plan/VersionRequest.h"

#include <QTreeWidget>

#include <vector>

namespace quorvantis {

/// The questions and options of an exam, each with a box to keep it in its place. What keeps its place by
/// itself says why, beside it.
class KeptParts : public QTreeWidget {
  Q_OBJECT

 public:
  /// Lists the questions 1 to `questionCount`.
  KeptParts(const ExamPaper& exam, int questionCount, const StringTable& strings, QWidget* parent);

  /// What is ticked.
  TeacherPins Pins() const;
  void ShowPins(const TeacherPins& pins);

  /// Says why parts keep their places, as a plan tells. The first time, options with a reason are unfolded.
  void ShowReasons(const std::vector<PinnedPart>& pinned);

 signals:
  void Changed();

 private:
  void AddQuestion(const ExamQuestion& question, int number);
  QTreeWidgetItem* ItemOf(const PinnedPart& part) const;

  const StringTable& strings_;
  bool saysWhy_ = false;  ///< has shown reasons
};

}  // namespace quorvantis
