// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/DrawnPane.h"

#include "desktop/bank/desk/ShownHitText.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/FlowLayout.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/BankTexts.h"
#include "platform/texts/DrawTexts.h"
#include "platform/texts/OverviewTexts.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QSplitter>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kBetweenButtons = 6;  // pixels

}  // namespace

DrawnPane::DrawnPane(const StringTable& strings, QWidget* parent)
    : QWidget(parent),
      strings_(strings),
      model_(strings, nullptr),
      table_(new DrawnTable(this)),
      whole_(new QTextEdit(this)),
      report_(new QPlainTextEdit(this)),
      exchange_(MakeButton("drawnExchange", text_id::kDrawExchange, &DrawnPane::ExchangeWished)),
      remove_(MakeButton("drawnRemove", text_id::kDrawRemove, &DrawnPane::Remove)),
      up_(MakeButton("drawnUp", text_id::kMoveUp, &DrawnPane::MoveUp)),
      down_(MakeButton("drawnDown", text_id::kMoveDown, &DrawnPane::MoveDown)),
      page_(MakeButton("drawnPage", text_id::kBankShow, &DrawnPane::PageWished)),
      back_(MakeButton("drawnBack", text_id::kDrawBack, &DrawnPane::GoBack)),
      insert_(MakeButton("drawnInsert", text_id::kDrawInsert, &DrawnPane::InsertWished)) {
  NameControl(table_, "drawnList", Text(text_id::kDrawList));
  table_->setModel(&model_);
  exchange_->setToolTip(PlainTip(Text(text_id::kDrawExchangeTip)));
  back_->setToolTip(PlainTip(Text(text_id::kDrawBackTip)));
  SetUpTexts();
  auto* below = new QSplitter(this);
  below->addWidget(whole_);
  below->addWidget(report_);
  auto* sides = new QSplitter(Qt::Vertical, this);
  sides->addWidget(table_);
  sides->addWidget(below);
  sides->setStretchFactor(0, 2);
  sides->setStretchFactor(1, 1);
  for (QSplitter* splitter : {below, sides}) splitter->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(sides, 1);
  layout->addLayout(PlaceButtons());
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &DrawnPane::ShowChosen);
  connect(table_, &DrawnTable::ExchangeWished, exchange_, &QPushButton::click);
  connect(table_, &DrawnTable::RemoveWished, remove_, &QPushButton::click);
  connect(table_, &DrawnTable::PageWished, page_, &QPushButton::click);
  connect(table_, &DrawnTable::MoveWished, this, [this](int by) { (by < 0 ? up_ : down_)->click(); });
  ShowChosen();
}

QPushButton* DrawnPane::MakeButton(const char* name, int text, void (DrawnPane::*command)()) {
  auto* button = MakePushButton(this, name, Text(text));
  connect(button, &QPushButton::clicked, this, command);
  return button;
}

void DrawnPane::SetUpTexts() {
  NameControl(whole_, "drawnQuestion", Text(text_id::kBankQuestion));
  whole_->setReadOnly(true);
  whole_->setTabChangesFocus(true);
  NameControl(report_, "drawReport", Text(text_id::kDrawReport));
  report_->setPlaceholderText(Text(text_id::kDrawReport));
  report_->setReadOnly(true);
  report_->setTabChangesFocus(true);
  // Lines that begin with a number run as the language does.
  QTextOption option = report_->document()->defaultTextOption();
  option.setTextDirection(layoutDirection());
  option.setAlignment(layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft);
  report_->document()->setDefaultTextOption(option);
}

QLayout* DrawnPane::PlaceButtons() {
  auto* buttons = new FlowLayout(kBetweenButtons, nullptr);
  for (QPushButton* button : Buttons()) buttons->addWidget(button);
  return buttons;
}

std::optional<std::size_t> DrawnPane::Chosen() const {
  const int row = table_->Row();
  if (row < 0 || row >= model_.rowCount()) return std::nullopt;
  return static_cast<std::size_t>(row);
}

void DrawnPane::Put(DrawnList list) {
  drawn_.Put(std::move(list));
  ShowList(0);
}

void DrawnPane::Exchange(std::size_t place, const AnotherDrawn& other) {
  drawn_.Exchange(place, other);
  ShowList(place);
}

void DrawnPane::TakeInserted(const std::set<std::size_t>& gone) {
  drawn_.TakeInserted(gone);
  ShowList(0);
}

void DrawnPane::Report(const std::vector<std::u16string>& lines) {
  QStringList shown;
  for (const std::u16string& line : lines) shown.append(ToQString(line));
  report_->setPlainText(shown.join(u'\n'));
}

void DrawnPane::SetBusy(bool isBusy) {
  isBusy_ = isBusy;
  EnableButtons();
}

std::vector<int> DrawnPane::Widths() const {
  std::vector<int> widths(DrawnModel::kColumns);
  for (int column = 0; column < DrawnModel::kColumns; ++column)
    widths[static_cast<std::size_t>(column)] = table_->columnWidth(column);
  return widths;
}

void DrawnPane::SetWidths(const std::vector<int>& widths) {
  for (int column = 0; column < DrawnModel::kColumns && column < static_cast<int>(widths.size()); ++column) {
    const int width = widths[static_cast<std::size_t>(column)];
    if (width > 0) table_->setColumnWidth(column, width);
  }
}

void DrawnPane::Remove() {
  const auto place = Chosen();
  if (!place) return;
  drawn_.Remove(*place);
  ShowList(*place);
  emit Arranged();
}

void DrawnPane::MoveBy(int rows) {
  const auto place = Chosen();
  if (!place) return;
  const int target = static_cast<int>(*place) + rows;
  if (target < 0 || target >= model_.rowCount()) return;
  drawn_.Move(*place, static_cast<std::size_t>(target));
  ShowList(static_cast<std::size_t>(target));
  emit Arranged();
}

void DrawnPane::GoBack() {
  if (!drawn_.CanGoBack()) return;
  drawn_.GoBack();
  ShowList(Chosen().value_or(0));
  emit Arranged();
}

void DrawnPane::ShowList(std::size_t chosen) {
  model_.Show(List());
  if (drawn_.Size() > 0) table_->Choose(static_cast<int>(std::min(chosen, drawn_.Size() - 1)));
  ShowChosen();
}

void DrawnPane::ShowChosen() {
  const auto place = Chosen();
  ShowHitText(*whole_, place ? WholeTextOf({List().rows.at(*place).question}) : BankHitText());
  EnableButtons();
}

QList<QPushButton*> DrawnPane::Buttons() const {
  return {insert_, exchange_, remove_, up_, down_, page_, back_};
}

/// A button that is disabled passes the focus on to anything; the keys of the list are of more use.
void DrawnPane::EnableButtons() {
  const auto place = Chosen();
  const QList<QPushButton*> buttons = Buttons();
  const auto pressed = std::find_if(buttons.begin(), buttons.end(),
                                    [](const QPushButton* button) { return button->hasFocus(); });
  const bool canAct = place.has_value() && !isBusy_;
  for (QPushButton* button : {exchange_, remove_, page_}) button->setEnabled(canAct);
  up_->setEnabled(canAct && *place > 0);
  down_->setEnabled(canAct && *place + 1 < drawn_.Size());
  back_->setEnabled(drawn_.CanGoBack() && !isBusy_);
  insert_->setEnabled(drawn_.Size() > 0 && !isBusy_);
  if (pressed != buttons.end() && !(*pressed)->hasFocus()) FocusList();
}

QString DrawnPane::Text(int number) const {
  return ToQString(strings_.Text(number));
}

}  // namespace quorvantis
