// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"
#include "check/IgnoredFindings.h"
#include "desktop/controls/BackgroundRun.h"
#include "editor/ExamEditor.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quorvantis {

/// A finding as windows show it.
struct ShownFinding {
  Finding finding;
  bool isIgnored = false;
};

/// Keeps the findings of the exam that is being edited up to date while somebody looks at them: checks on
/// another thread, once the exam has not changed for a moment. Also remembers what is ignored.
class ExamChecker : public QObject {
  Q_OBJECT

 public:
  /// `editor` must outlive this. `isWanted` tells whether anybody looks.
  ExamChecker(ExamEditor& editor, std::function<bool()> isWanted, QObject* parent);
  ~ExamChecker() override;

  /// The exam may have changed, another one is shown, or somebody has begun to look.
  void ExamChanged();

  /// Checks at once, whether it is wanted or not.
  void CheckNow();

  bool IsUpToDate() const { return !stale_ && !run_.IsRunning(); }

  /// As the last check found them, in the order of CheckExam; empty before the first one.
  const std::vector<ShownFinding>& Findings() const { return findings_; }
  /// Of those that are not ignored.
  int CountOf(Severity severity) const;
  std::optional<double> SumOfScores() const { return sum_; }
  /// The exam that was checked; null before the first check.
  const FrameSetExam* Checked() const { return exam_.get(); }

  /// `index` is that of a finding.
  void Ignore(std::size_t index, bool isIgnored);

 signals:
  /// There are findings of a new check, or other ones are ignored.
  void Changed();

 private:
  void FollowFile();
  void Take(std::shared_ptr<const FrameSetExam> exam, std::vector<Finding> findings);

  ExamEditor& editor_;
  std::function<bool()> isWanted_;
  IgnoredFindings ignored_;
  BackgroundRun run_;
  QTimer whenQuiet_;
  bool stale_ = true;  ///< the findings are not those of the exam
  int examsBegun_ = -1;
  std::shared_ptr<const FrameSetExam> exam_;
  std::vector<ShownFinding> findings_;
  std::optional<double> sum_;
};

}  // namespace quorvantis
