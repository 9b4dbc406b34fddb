// SPDX-License-Identifier: MIT
#include "desktop/bank/asked/EarlierUsesModel.h"

#include "desktop/bank/desk/BankExamCaption.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/AskedTexts.h"

namespace quorvantis {
namespace {

enum UseRole { kQuestionPlaceRole = Qt::UserRole, kUsePlaceRole };

constexpr std::size_t kMostUses = 50;  // of a question; more of them nobody reads

}  // namespace

EarlierUsesModel::EarlierUsesModel(const StringTable& strings, QObject* parent)
    : QStandardItemModel(0, kUseColumns, parent), strings_(strings) {
  setHorizontalHeaderLabels({ToQString(strings.Text(text_id::kAskedColumnWhere)),
                             ToQString(strings.Text(text_id::kAskedColumnDay)),
                             ToQString(strings.Text(text_id::kAskedColumnHow))});
}

void EarlierUsesModel::Show(const AskedBefore& asked, const std::filesystem::path& onlyIn) {
  removeRows(0, rowCount());
  names_ = NamesOfOlder(asked, strings_);
  for (std::size_t i = 0; i < asked.likeness.uses.size(); ++i) {
    QStandardItem* branch = nullptr;
    const std::vector<BankUse>& uses = asked.likeness.uses[i];
    std::size_t shown = 0;
    for (std::size_t use = 0; use < uses.size() && shown < kMostUses; ++use) {
      if (!onlyIn.empty() && uses[use].exam.path != onlyIn) continue;
      if (branch == nullptr) branch = AddBranch(QuestionCaption(asked, i, strings_), i);
      AddUse(*branch, uses[use], use);
      ++shown;
    }
  }
}

QStandardItem* EarlierUsesModel::AddBranch(const QString& caption, std::size_t question) {
  auto* branch = new QStandardItem(caption);
  branch->setData(static_cast<qulonglong>(question), kQuestionPlaceRole);
  branch->setEditable(false);
  QFont bold = branch->font();
  bold.setBold(true);
  branch->setFont(bold);
  appendRow(branch);
  return branch;
}

void EarlierUsesModel::AddUse(QStandardItem& branch, const BankUse& use, std::size_t place) {
  const QString where = BankPlaceText(names_.Of(use.exam), use.number, strings_);
  const QString how = RelationWords(use.relation, strings_);
  const QList<QStandardItem*> row{new QStandardItem(where), new QStandardItem(BankExamDay(use.exam)),
                                  new QStandardItem(how)};
  for (QStandardItem* item : row) {
    item->setData(branch.data(kQuestionPlaceRole), kQuestionPlaceRole);
    item->setData(static_cast<qulonglong>(place), kUsePlaceRole);
    item->setEditable(false);
  }
  row[kWhere]->setData(where + ", " + BankExamDay(use.exam) + ", " + how, Qt::AccessibleTextRole);
  row[kWhere]->setToolTip(PathToQString(use.exam.path).toHtmlEscaped());
  branch.appendRow(row);
}

std::size_t EarlierUsesModel::QuestionOf(const QModelIndex& index) {
  return static_cast<std::size_t>(index.data(kQuestionPlaceRole).toULongLong());
}

std::optional<std::size_t> EarlierUsesModel::UseOf(const QModelIndex& index) {
  const QVariant use = index.data(kUsePlaceRole);
  return use.isValid() ? std::optional(static_cast<std::size_t>(use.toULongLong())) : std::nullopt;
}

}  // namespace quorvantis
