// SPDX-License-Identifier: MIT
#include "desktop/studio/SideBySide.h"

#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace quorvantis {

SideBySide::SideBySide(PaperView& paper, QTableView& questions, QObject* parent)
    : QObject(parent), paper_(paper), questions_(questions) {
  connect(questions.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& index) {
            if (index.isValid()) ChooseQuestion(index.row());
          });
  // A click shows the question even if it is the current one.
  connect(&questions, &QTableView::clicked, this,
          [this](const QModelIndex& index) { ChooseQuestion(index.row()); });
  connect(&paper, &PaperView::PlaceChosen, this, &SideBySide::ChoosePlace);
  connect(paper.verticalScrollBar(), &QScrollBar::valueChanged, this, &SideBySide::FollowPaper);
  connect(questions.verticalScrollBar(), &QScrollBar::valueChanged, this, &SideBySide::FollowQuestions);
}

void SideBySide::ShowStudy(const PaperStudy& study) {
  const QScopedValueRollback following(isFollowing_, true);
  lookup_ = RoleLookup(study.Roles());
  Select(lookup_.QuestionAt(paper_.CursorPlace()));
}

void SideBySide::Clear() {
  lookup_ = {};
}

void SideBySide::ChooseQuestion(int row) {
  if (isFollowing_) return;
  const QScopedValueRollback following(isFollowing_, true);
  const std::optional<TextSpan> place = lookup_.PlaceOf(row);
  paper_.ShowChosen(place);
  if (place) paper_.BringIntoView(place->begin);
}

void SideBySide::ChoosePlace(std::size_t place) {
  const QScopedValueRollback following(isFollowing_, true);
  Select(lookup_.QuestionAt(place));
}

void SideBySide::Select(int row) {
  const QModelIndex index = questions_.model()->index(row, 0);
  paper_.ShowChosen(lookup_.PlaceOf(row));
  if (!index.isValid()) return questions_.selectionModel()->clear();
  questions_.setCurrentIndex(index);
  questions_.scrollTo(index);
}

void SideBySide::FollowPaper() {
  if (isFollowing_) return;
  const QScopedValueRollback following(isFollowing_, true);
  const QModelIndex index = questions_.model()->index(lookup_.QuestionAt(paper_.TopPlace()), 0);
  if (index.isValid()) questions_.scrollTo(index, QAbstractItemView::PositionAtTop);
}

void SideBySide::FollowQuestions() {
  if (isFollowing_) return;
  const QScopedValueRollback following(isFollowing_, true);
  if (const auto place = lookup_.PlaceOf(questions_.rowAt(0))) paper_.ScrollTo(place->begin);
}

}  // namespace quorvantis
