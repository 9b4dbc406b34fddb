// SPDX-License-Identifier: MIT
#include "desktop/bank/asked/SharedExamsModel.h"

#include "desktop/bank/desk/BankExamCaption.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/AskedTexts.h"
#include "text/NumberText.h"

namespace quorvantis {
namespace {

constexpr int kExamFileRole = Qt::UserRole;

QString CountText(std::size_t count) {
  return ToQString(FormatInteger(static_cast<std::int64_t>(count)));
}

}  // namespace

SharedExamsModel::SharedExamsModel(const StringTable& strings, QObject* parent)
    : QStandardItemModel(0, kExamColumns, parent), strings_(strings) {
  QStringList captions;
  for (const int text : {text_id::kAskedColumnExam, text_id::kAskedColumnDay, text_id::kAskedColumnSame,
                         text_id::kAskedColumnVariants, text_id::kAskedColumnShare})
    captions << ToQString(strings.Text(text));
  setHorizontalHeaderLabels(captions);
}

void SharedExamsModel::Show(const AskedBefore& asked) {
  removeRows(0, rowCount());
  if (asked.likeness.exams.empty()) return;
  auto* all = new QStandardItem(ToQString(strings_.Text(text_id::kAskedAllExams)));
  all->setEditable(false);
  appendRow(all);
  const BankExamNames names = NamesOfOlder(asked, strings_);
  for (const BankShare& share : asked.likeness.exams) AddExam(share, names.Of(share.exam));
}

void SharedExamsModel::AddExam(const BankShare& share, const QString& name) {
  const QList<QStandardItem*> row{new QStandardItem(name), new QStandardItem(BankExamDay(share.exam)),
                                  new QStandardItem(CountText(share.same)),
                                  new QStandardItem(CountText(share.variants)),
                                  new QStandardItem(ShareText(share, strings_))};
  QString spoken;
  for (int column = 0; column < kExamColumns; ++column) {
    row[column]->setEditable(false);
    row[column]->setData(PathToQString(share.exam.path), kExamFileRole);
    row[column]->setToolTip(PathToQString(share.exam.path).toHtmlEscaped());
    if (column >= kSame) row[column]->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    spoken += (column == 0 ? "" : ", " + horizontalHeaderItem(column)->text() + ' ') + row[column]->text();
  }
  row[kExam]->setData(spoken, Qt::AccessibleTextRole);
  appendRow(row);
}

std::filesystem::path SharedExamsModel::ExamOf(const QModelIndex& index) {
  return QStringToPath(index.data(kExamFileRole).toString());
}

int SharedExamsModel::RowOf(const std::filesystem::path& exam) const {
  for (int row = 1; row < rowCount(); ++row) {
    if (ExamOf(index(row, 0)) == exam) return row;
  }
  return 0;
}

}  // namespace quorvantis
