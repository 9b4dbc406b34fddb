// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/DrawnModel.h"

#include "bank/draw/DrawTexts.h"
#include "desktop/bank/desk/BankExamNames.h"
#include "desktop/bank/desk/BankHitText.h"
#include "desktop/bank/draw/TypedOrder.h"
#include "desktop/bank/hits/BankHitsModel.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/DrawTexts.h"
#include "text/MessageText.h"

namespace quorvantis {
namespace {

constexpr int kHeadingTexts[] = {text_id::kDrawColumnQuestion, text_id::kDrawColumnFrom,
                                 text_id::kDrawColumnWhy};

}  // namespace

void DrawnModel::Show(const DrawnList& list) {
  beginResetModel();
  rows_.clear();
  rows_.reserve(list.rows.size());
  std::vector<const BankExam*> exams;
  exams.reserve(list.rows.size());
  for (const DrawnRow& row : list.rows) exams.push_back(&row.question.exam);
  const BankExamNames names(exams, strings_);
  for (const DrawnRow& row : list.rows) {
    const QString from = BankHeading(names.Of(row.question.exam), row.question, strings_);
    rows_.push_back({ToQString(ExcerptOf({row.question}).text), from, WhyOf(list, row),
                     PathToQString(row.question.exam.path)});
  }
  endResetModel();
}

QString DrawnModel::WhyOf(const DrawnList& list, const DrawnRow& row) const {
  if (row.isGone) return ToQString(strings_.Text(text_id::kDrawGone));
  const std::u16string wish = WishName(list.order.request.wishes.at(row.drawn.wish), strings_);
  return ToQString(FillMessage(strings_.Text(text_id::kDrawForWish),
                               {wish, ReasonText(row.drawn, row.lastExam, strings_)}));
}

int DrawnModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int DrawnModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant DrawnModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const QStringList& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
      return row[index.column()];
    case Qt::ToolTipRole:
      return row[index.column() == kFrom ? kColumns : index.column()].toHtmlEscaped();
    default:
      return {};
  }
}

QVariant DrawnModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole || section < 0) return {};
  if (orientation == Qt::Vertical) return section + 1;
  return section < kColumns ? ToQString(strings_.Text(kHeadingTexts[section])) : QVariant();
}

}  // namespace quorvantis
