// SPDX-License-Identifier: MIT
#include "desktop/versions/PlanModel.h"

#include "desktop/controls/QtText.h"
#include "model/QuestionKinds.h"
#include "text/AsciiCase.h"
#include "versions/plan/OptionOrder.h"

#include <utility>

namespace quorvantis {

void PlanModel::Show(VersionPlan plan) {
  beginResetModel();
  plan_ = std::move(plan);
  endResetModel();
}

int PlanModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid() || plan_.versions.empty()) return 0;
  return static_cast<int>(plan_.versions.front().questions.size());
}

int PlanModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(plan_.versions.size());
}

QVariant PlanModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid()) return {};
  const PlannedVersion& version = plan_.versions[static_cast<std::size_t>(index.column())];
  const auto place = static_cast<std::size_t>(index.row());
  const ExamQuestion& question = exam_.Question(version.questions[place]);
  const QString number = QString::number(version.questions[place]);
  if (!AnswerOf(question.kind).options || question.answerLetters.empty()) return number;
  const bool isMoved = version.options[place] != kSourceOrder;
  const std::u16string key =
      isMoved ? MovedKey(question.answerLetters, version.options[place]) : question.answerLetters;
  return QString(number + QStringLiteral("  ") + ToQString(AsciiUpper(key)));
}

QVariant PlanModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  if (orientation == Qt::Vertical) return section + 1;
  return ToQString(plan_.versions[static_cast<std::size_t>(section)].name);
}

}  // namespace quorvantis
