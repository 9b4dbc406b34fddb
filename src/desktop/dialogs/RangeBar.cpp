// SPDX-License-Identifier: MIT
#include "desktop/dialogs/RangeBar.h"

#include "desktop/controls/QtText.h"
#include "desktop/dialogs/RangeColours.h"
#include "text/NumberText.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <algorithm>
#include <cstdlib>

namespace quorvantis {
namespace {

constexpr int kPadding = 5;
constexpr int kTextMargin = 2;  // at both sides of the numbers in a piece
constexpr int kCorner = 5;
constexpr int kHandleReach = 6;  // pixels to both sides of an end
constexpr int kHandleWidth = 3;

QString QuestionsOf(const ScoreSegment& segment) {
  const QString first = QString::number(segment.first);
  return segment.first == segment.last ? first : first + QChar(0x2013) + QString::number(segment.last);
}

QString ScoreText(double score) {
  return ToQString(FormatScore(score));
}

}  // namespace

RangeBar::RangeBar(const ScoreSetup& setup, Texts texts, QWidget* parent)
    : QWidget(parent), setup_(setup), texts_(std::move(texts)) {
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  Refresh();
}

void RangeBar::Refresh() {
  drag_.reset();
  MarkHandle(0);
  Show(setup_);
  QString description;
  for (const ScoreSegment& segment : segments_) description += SegmentText(segment) + ", ";
  setAccessibleDescription(description + TotalText());
}

/// While all questions have the same score, the ranges do not count and are not shown.
void RangeBar::Show(const ScoreSetup& setup) {
  const ScoreDistribution ranges = setup.Fields().Enabled() ? setup.Typed() : ScoreDistribution();
  segments_ = SegmentsOf(ranges, setup.QuestionCount());
  update();
}

QString RangeBar::SegmentText(const ScoreSegment& segment) const {
  const QString questions = QuestionsOf(segment);
  return setup_.Fields().Enabled() ? questions + ": " + ScoreText(segment.score) : questions;
}

QString RangeBar::TotalText() const {
  if (setup_.QuestionCount() == 0) return texts_.noQuestions;
  return setup_.Fields().Enabled() ? texts_.totalScore.arg(ScoreText(TotalScore(segments_))) : QString();
}

QSize RangeBar::sizeHint() const {
  return {480, minimumSizeHint().height()};
}

/// A line for the total, and two in the bar.
QSize RangeBar::minimumSizeHint() const {
  return {300, 3 * fontMetrics().height() + 3 * kPadding};
}

QRect RangeBar::BarRect() const {
  return rect().adjusted(0, fontMetrics().height() + kPadding, 0, 0);
}

QRect RangeBar::RectOf(const ScoreSegment& segment) const {
  const QRect bar = BarRect();
  const int one = EdgeBehind(segment.first - 1);
  const int other = EdgeBehind(segment.last);
  return {std::min(one, other), bar.top(), std::abs(other - one), bar.height()};
}

/// Where a question ends, in pixels; for 0, where the first one begins.
int RangeBar::EdgeBehind(int question) const {
  const QRect bar = BarRect();
  const int distance = bar.width() * question / std::max(1, setup_.QuestionCount());
  return isRightToLeft() ? bar.left() + bar.width() - distance : bar.left() + distance;
}

/// The question that ends nearest to `x`.
int RangeBar::QuestionBefore(int x) const {
  const QRect bar = BarRect();
  const int distance = isRightToLeft() ? bar.left() + bar.width() - x : x - bar.left();
  return (distance * setup_.QuestionCount() + bar.width() / 2) / std::max(1, bar.width());
}

bool RangeBar::IsDraggable(const ScoreSegment& segment) const {
  return segment.range != 0 && isEnabled() && setup_.IsEndEditable(segment.range);
}

/// The range whose end is near `x`, or 0.
int RangeBar::DraggableRangeAt(int x) const {
  int range = 0;
  int nearest = kHandleReach + 1;
  for (const ScoreSegment& segment : segments_) {
    const int distance = std::abs(x - EdgeBehind(segment.last));
    if (distance >= nearest || !IsDraggable(segment)) continue;
    nearest = distance;
    range = segment.range;
  }
  return range;
}

/// Keeps a dragged end between the start of its range and the next end. It can reach only the last end, and
/// then replaces the next range.
int RangeBar::NearestAllowedEnd(int range, int question) const {
  const ScoreDistribution ranges = setup_.Typed();
  const auto next = static_cast<std::size_t>(range);
  const bool nextGivesWay = ranges.scoreTo[next] == 0 || ranges.scoreTo[next] == setup_.QuestionCount();
  const int most = nextGivesWay ? setup_.QuestionCount() : ranges.scoreTo[next] - 1;
  return std::max(ranges.scoreFrom[next - 1], std::min(question, most));
}

void RangeBar::MarkHandle(int range) {
  handle_ = range;
  if (range != 0) {
    setCursor(Qt::SplitHCursor);
  } else {
    unsetCursor();
  }
  update();
}

void RangeBar::mousePressEvent(QMouseEvent* event) {
  const int range = DraggableRangeAt(event->position().toPoint().x());
  if (event->button() != Qt::LeftButton || range == 0) return;
  drag_ = Drag{range, setup_.Typed().scoreTo[static_cast<std::size_t>(range - 1)]};
}

void RangeBar::mouseMoveEvent(QMouseEvent* event) {
  const int x = event->position().toPoint().x();
  if (!drag_) {
    MarkHandle(DraggableRangeAt(x));
    return;
  }
  drag_->question = NearestAllowedEnd(drag_->range, QuestionBefore(x));
  ScoreSetup tried = setup_;
  tried.TypeEnd(drag_->range, FormatInteger(drag_->question));
  Show(tried);
}

void RangeBar::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !drag_) return;
  const Drag drag = *drag_;
  Refresh();
  emit EndDragged(drag.range, drag.question);
}

void RangeBar::leaveEvent(QEvent*) {
  if (!drag_) MarkHandle(0);
}

void RangeBar::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange) updateGeometry();
  QWidget::changeEvent(event);
}

void RangeBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawText(
      rect(), static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignRight)) | Qt::AlignTop,
      TotalText());
  QPainterPath outline;
  outline.addRoundedRect(BarRect(), kCorner, kCorner);
  painter.setClipPath(outline);
  painter.fillPath(outline, RangeColour(0, palette()));
  for (const ScoreSegment& segment : segments_) PaintSegment(painter, segment);
  for (const ScoreSegment& segment : segments_) PaintHandle(painter, segment);
}

/// Numbers that do not fit are left out: the fields show them.
void RangeBar::PaintSegment(QPainter& painter, const ScoreSegment& segment) const {
  const QRect area = RectOf(segment);
  const QColor colour = RangeColour(segment.range, palette());
  painter.fillRect(area, colour);
  painter.setPen(segment.range == 0 ? palette().color(QPalette::WindowText) : TextColourOn(colour));
  const QString questions = QuestionsOf(segment);
  const QString score = segment.range == 0 ? QString() : ScoreText(segment.score);
  const auto fits = [&](const QString& text) {
    return fontMetrics().horizontalAdvance(text) + 2 * kTextMargin <= area.width();
  };
  if (!fits(questions)) return;
  const bool both = !score.isEmpty() && fits(score);
  painter.drawText(area, Qt::AlignCenter, both ? questions + "\n" + score : questions);
}

void RangeBar::PaintHandle(QPainter& painter, const ScoreSegment& segment) const {
  if (!IsDraggable(segment)) return;
  const bool marked = drag_ ? drag_->range == segment.range : handle_ == segment.range;
  const QRect bar = BarRect();
  QColor colour = palette().color(marked ? QPalette::Highlight : QPalette::WindowText);
  if (!marked) colour.setAlpha(110);
  const int middle =
      std::clamp(EdgeBehind(segment.last), bar.left() + kHandleWidth, bar.right() + 1 - kHandleWidth);
  const QRectF handle(middle - kHandleWidth / 2.0, bar.top() + bar.height() / 4.0, kHandleWidth,
                      bar.height() / 2.0);
  QPainterPath path;
  path.addRoundedRect(handle, kHandleWidth / 2.0, kHandleWidth / 2.0);
  painter.fillPath(path, colour);
}

}  // namespace quorvantis
