// SPDX-License-Identifier: MIT
#include "desktop/overview/TickedQuestions.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/OverviewTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>
#include <numeric>

namespace quorvantis {
namespace {

constexpr int kTextColumnWidth = 300;  // pixels
constexpr int kWidestKeyColumn = 180;  // a model answer may be long

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

TickedQuestions::TickedQuestions(const Place& place, const StringTable& strings, const QString& spokenName,
                                 QWidget* parent)
    : QWidget(parent),
      place_(place),
      strings_(strings),
      model_(new TickedOverviewModel(strings, this)),
      table_(new OverviewTable(this)),
      count_(new QLabel(this)) {
  table_->setModel(model_);
  table_->setDragEnabled(false);
  table_->setAcceptDrops(false);
  table_->installEventFilter(this);
  NameControl(table_, "questionsOfExam", spokenName);
  NameControl(count_, "tickedCount", {});
  count_->setWordWrap(true);
  auto* below = new QHBoxLayout;
  below->addWidget(MakeButton("tickAll", text_id::kTickAll, true));
  below->addWidget(MakeButton("tickNone", text_id::kTickNone, false));
  below->addWidget(count_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(table_);
  layout->addLayout(below);
  connect(model_, &TickedOverviewModel::TicksChanged, this, &TickedQuestions::ShowCount);
  ShowCount();
}

QPushButton* TickedQuestions::MakeButton(const char* name, int text, bool ticks) {
  auto* button = MakePushButton(this, name, ToQString(strings_.Text(text)));
  connect(button, &QPushButton::clicked, this, [this, ticks] { TickFirst(model_->rowCount(), ticks); });
  return button;
}

void TickedQuestions::Show(std::vector<OverviewRow> rows) {
  TickFirst(model_->rowCount(), false);
  model_->Update(std::move(rows));
  table_->resizeColumnsToContents();
  table_->setColumnWidth(OverviewModel::Text, kTextColumnWidth);
  table_->setColumnWidth(OverviewModel::Key,
                         std::min(table_->columnWidth(OverviewModel::Key), kWidestKeyColumn));
  table_->setCurrentIndex(
      model_->index(0, OverviewModel::Text));  // selectRow does nothing in a mirrored table
  ShowCount();
}

void TickedQuestions::TickWhatFits() {
  TickFirst(std::min(model_->rowCount(), place_.room), true);
}

void TickedQuestions::FocusList() {
  table_->setFocus();
}

void TickedQuestions::TickFirst(int count, bool on) {
  std::vector<int> rows(static_cast<std::size_t>(count));
  std::iota(rows.begin(), rows.end(), 0);
  model_->Tick(rows, on);
}

/// All selected rows get the opposite of what the current one has.
void TickedQuestions::TickSelected() {
  const QModelIndex current = table_->currentIndex();
  const std::vector<int> rows = table_->SelectedRows();
  if (current.isValid() && !rows.empty()) model_->Tick(rows, !model_->IsTicked(current.row()));
}

bool TickedQuestions::eventFilter(QObject* watched, QEvent* event) {
  if (watched != table_ || event->type() != QEvent::KeyPress ||
      static_cast<QKeyEvent*>(event)->key() != Qt::Key_Space)
    return QWidget::eventFilter(watched, event);
  TickSelected();
  return true;
}

bool TickedQuestions::CanBeInserted() const {
  const int ticked = static_cast<int>(model_->Ticked().size());
  return ticked > 0 && ticked <= place_.room;
}

void TickedQuestions::ShowCount() {
  const auto ticked = static_cast<std::int64_t>(model_->Ticked().size());
  std::u16string told = FillMessage(strings_.Text(text_id::kTickedAndRoom),
                                    {FormatInteger(ticked), FormatInteger(place_.room)});
  if (place_.after > 0)
    told += u' ' + FillMessage(strings_.Text(text_id::kTakenComeAfter), {FormatInteger(place_.after)});
  count_->setText(ToQString(told));
  emit Changed();
}

}  // namespace quorvantis
