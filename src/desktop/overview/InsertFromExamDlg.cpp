// SPDX-License-Identifier: MIT
#include "desktop/overview/InsertFromExamDlg.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/TextNumbers.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

namespace quorvantis {
namespace {

constexpr QSize kDialogSize(760, 480);  // pixels
constexpr int kTextColumnWidth = 300;

}  // namespace

void TickedOverviewModel::Tick(const std::vector<int>& rows, bool on) {
  for (const int row : rows) {
    on ? void(ticked_.insert(QuestionAt(row))) : void(ticked_.erase(QuestionAt(row)));
    emit dataChanged(index(row, Number), index(row, Number), {Qt::CheckStateRole});
  }
  emit TicksChanged();
}

QVariant TickedOverviewModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::CheckStateRole || !index.isValid() || index.column() != Number)
    return OverviewModel::data(index, role);
  return IsTicked(index.row()) ? Qt::Checked : Qt::Unchecked;
}

bool TickedOverviewModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !index.isValid()) return false;
  Tick({index.row()}, value.toInt() == Qt::Checked);
  return true;
}

Qt::ItemFlags TickedOverviewModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  return index.column() == Number ? flags | Qt::ItemIsUserCheckable : flags;
}

InsertFromExamDlg::InsertFromExamDlg(const OtherExam& other, const Place& place, const StringTable& strings,
                                     QWidget* parent)
    : QDialog(parent),
      strings_(strings),
      place_(place),
      model_(new TickedOverviewModel(strings, this)),
      table_(new OverviewTable(this)),
      count_(new QLabel(this)),
      insert_(MakeButton("insertTicked", text_id::kInsertTicked)) {
  setObjectName("insertFromExam");
  const std::u16string name = PathToText(other.File().filename());
  setWindowTitle(ToQString(FillMessage(strings.Text(text_id::kInsertFrom), {name})));
  model_->Update(OverviewRows({other.Exam(), other.QuestionCount()}));
  table_->setModel(model_);
  table_->setDragEnabled(false);
  table_->setAcceptDrops(false);
  table_->resizeColumnsToContents();
  table_->setColumnWidth(OverviewModel::Text, kTextColumnWidth);
  table_->installEventFilter(this);
  NameControl(table_, "questionsOfExam", windowTitle());
  NameControl(count_, "tickedCount", {});
  auto* layout = new QVBoxLayout(this);
  for (const std::u16string& told : {other.Problem(), other.PassedOverNotice()}) {
    if (!told.empty()) layout->addWidget(MakeNotice(told));
  }
  layout->addWidget(table_);
  layout->addWidget(count_);
  auto* all = MakeButton("tickAll", text_id::kTickAll);
  auto* none = MakeButton("tickNone", text_id::kTickNone);
  auto* cancel = MakeButton("cancelInsert", text_id::kCancel);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(all);
  buttons->addWidget(none);
  buttons->addStretch();
  buttons->addWidget(insert_);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);
  connect(all, &QPushButton::clicked, this, [this] { TickAll(true); });
  connect(none, &QPushButton::clicked, this, [this] { TickAll(false); });
  connect(insert_, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  connect(model_, &TickedOverviewModel::TicksChanged, this, &InsertFromExamDlg::ShowCount);
  resize(kDialogSize.boundedTo(screen()->availableSize()));
  ShowCount();
  table_->setFocus();
  table_->selectRow(0);
}

QString InsertFromExamDlg::Text(int id) const {
  return ToQString(strings_.Text(id));
}

QLabel* InsertFromExamDlg::MakeNotice(const std::u16string& text) {
  auto* notice = new QLabel(ToQString(text), this);
  notice->setTextFormat(Qt::PlainText);
  notice->setWordWrap(true);
  return notice;
}

QPushButton* InsertFromExamDlg::MakeButton(const char* name, int text) {
  auto* button = new QPushButton(Text(text), this);
  NameControl(button, name, button->text());
  return button;
}

void InsertFromExamDlg::TickAll(bool on) {
  std::vector<int> rows(static_cast<std::size_t>(model_->rowCount()));
  for (int row = 0; row < model_->rowCount(); ++row) rows[static_cast<std::size_t>(row)] = row;
  model_->Tick(rows, on);
}

/// All selected rows get the opposite of what the current one has.
void InsertFromExamDlg::TickSelected() {
  const QModelIndex current = table_->currentIndex();
  const std::vector<int> rows = table_->SelectedRows();
  if (current.isValid() && !rows.empty()) model_->Tick(rows, !model_->IsTicked(current.row()));
}

bool InsertFromExamDlg::eventFilter(QObject* watched, QEvent* event) {
  if (watched != table_ || event->type() != QEvent::KeyPress ||
      static_cast<QKeyEvent*>(event)->key() != Qt::Key_Space)
    return QDialog::eventFilter(watched, event);
  TickSelected();
  return true;
}

void InsertFromExamDlg::ShowCount() {
  const int ticked = static_cast<int>(model_->Ticked().size());
  std::u16string told = FillMessage(strings_.Text(text_id::kTickedAndRoom),
                                    {FormatInteger(ticked), FormatInteger(place_.room)});
  if (place_.after > 0)
    told += u' ' + FillMessage(strings_.Text(text_id::kTakenComeAfter), {FormatInteger(place_.after)});
  count_->setText(ToQString(told));
  insert_->setEnabled(ticked > 0 && ticked <= place_.room);
}

}  // namespace quorvantis
