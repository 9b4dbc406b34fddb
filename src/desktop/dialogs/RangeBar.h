// SPDX-License-Identifier: MIT
#pragma once

#include "scoring/ScoreSegments.h"
#include "scoring/ScoreSetup.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace quorvantis {

/// The exam as a bar: a coloured piece for each score range, with the numbers of its questions and their
/// score, and the total score above. The end of a range can be dragged if its field is editable; meanwhile
/// the bar shows the resulting ranges. It is for the mouse only: everything it does and shows is in the
/// fields as well.
class RangeBar : public QWidget {
  Q_OBJECT

 public:
  /// Texts with a place for a value ("%1"), and without one.
  struct Texts {
    QString totalScore;
    QString noQuestions;
  };

  /// `setup` must outlive the bar.
  RangeBar(const ScoreSetup& setup, Texts texts, QWidget* parent);

  /// Shows the setup as it is now.
  void Refresh();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// The end of a range was dragged to a question.
  void EndDragged(int range, int question);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Drag {
    int range;
    int question;  ///< where its end is now
  };

  void Show(const ScoreSetup& setup);
  QString SegmentText(const ScoreSegment& segment) const;
  QString TotalText() const;

  QRect BarRect() const;
  QRect RectOf(const ScoreSegment& segment) const;
  int EdgeBehind(int question) const;
  int QuestionBefore(int x) const;
  int DraggableRangeAt(int x) const;
  bool IsDraggable(const ScoreSegment& segment) const;
  int NearestAllowedEnd(int range, int question) const;
  void MarkHandle(int range);

  void PaintSegment(QPainter& painter, const ScoreSegment& segment) const;
  void PaintHandle(QPainter& painter, const ScoreSegment& segment) const;

  const ScoreSetup& setup_;
  Texts texts_;
  std::vector<ScoreSegment> segments_;
  std::optional<Drag> drag_;
  int handle_ = 0;  ///< range whose end is under the mouse, 0 for none
};

}  // namespace quorvantis
