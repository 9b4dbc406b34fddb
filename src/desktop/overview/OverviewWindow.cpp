// SPDX-License-Identifier: MIT
#include "desktop/overview/OverviewWindow.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/OverviewTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScreen>
#include <QToolButton>

#include <algorithm>
#include <iterator>

namespace quorvantis {
namespace {

constexpr int kSoon = 20;        // milliseconds; several changes of one command are looked at once
constexpr int kRegularly = 400;  // for changes that nobody reports, such as ticks and scores
constexpr int kFirstWidths[] = {50, 90, 300, 130, 60, 50, 100};  // pixels
static_assert(std::size(kFirstWidths) == OverviewModel::kColumns);
constexpr QSize kFirstSize(840, 520);
constexpr std::u16string_view kSection = u"overview";

}  // namespace

OverviewWindow::OverviewWindow(ExamEditor& editor, WholeQuestionCommands& commands, QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      editor_(editor),
      commands_(commands),
      setting_(editor.state.document.Services().applicationFolder, editor.state.document.Services().files,
               std::u16string(kSection)),
      model_(new OverviewModel(editor.state.document.Services().strings, this)),
      filter_(new OverviewFilterLine(editor.state.document.Services().strings, this)),
      table_(new OverviewTable(this)),
      status_(new QLabel(this)),
      count_(new QLabel(this)) {
  setObjectName("overview");
  setWindowTitle(Text(text_id::kOverview));
  NameControl(table_, "overviewTable", windowTitle());
  NameControl(status_, "overviewStatus", {});
  NameControl(count_, "overviewCount", {});
  status_->setTextFormat(Qt::PlainText);
  status_->setWordWrap(true);
  table_->setModel(model_);
  MakeActions();
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(filter_);
  layout->addWidget(table_, 1);
  layout->addWidget(MakeButtons());
  auto* below = new QHBoxLayout;
  below->addWidget(status_, 1);
  below->addWidget(count_);
  layout->addLayout(below);
  RestorePlace();
  connect(filter_, &OverviewFilterLine::Changed, this, &OverviewWindow::Refresh);
  // What was told last is out of date then.
  connect(model_, &QAbstractItemModel::dataChanged, status_,
          [this](const QModelIndex&, const QModelIndex&, const QList<int>& roles) {
            if (roles.isEmpty()) status_->clear();  // else only marks have changed
          });
  connect(model_, &QAbstractItemModel::rowsInserted, status_, &QLabel::clear);
  connect(model_, &QAbstractItemModel::rowsRemoved, status_, &QLabel::clear);
  connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &OverviewWindow::CurrentChanged);
  connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &OverviewWindow::EnableActions);
  connect(table_, &OverviewTable::RowsDropped, this, &OverviewWindow::MoveBefore);
  connect(table_, &OverviewTable::QuestionDropped, this, &OverviewWindow::InsertBefore);
  connect(table_, &QTableView::doubleClicked, parent, [parent] { parent->activateWindow(); });
  table_->installEventFilter(this);
  table_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(table_, &QWidget::customContextMenuRequested, this, &OverviewWindow::ShowMenu);
  soon_.setSingleShot(true);
  soon_.setInterval(kSoon);
  regularly_.setInterval(kRegularly);
  connect(&soon_, &QTimer::timeout, this, &OverviewWindow::Refresh);
  connect(&regularly_, &QTimer::timeout, this, &OverviewWindow::Refresh);
  table_->setFocus();
}

OverviewWindow::~OverviewWindow() {
  if (isVisible()) KeepPlace();
}

QString OverviewWindow::Text(int id) const {
  return ToQString(editor_.state.document.Services().strings.Text(id));
}

void OverviewWindow::MakeActions() {
  using Numbers = std::vector<int>;
  AddCommand("overviewMoveUp", text_id::kMoveUp, Qt::ALT | Qt::Key_Up,
             [this](const Numbers&) { return MoveBy(-1); });
  AddCommand("overviewMoveDown", text_id::kMoveDown, Qt::ALT | Qt::Key_Down,
             [this](const Numbers&) { return MoveBy(1); });
  AddCommand("overviewMoveTo", text_id::kMoveTo, Qt::CTRL | Qt::Key_M,
             [this](const Numbers& numbers) { return commands_.AskAndMove(numbers, this); });
  AddCommand("overviewDuplicate", text_id::kDuplicateQuestion, Qt::CTRL | Qt::Key_D,
             [this](const Numbers& numbers) { return commands_.Duplicate(numbers); });
  AddCommand("overviewDelete", text_id::kDeleteQuestions, Qt::Key_Delete,
             [this](const Numbers& numbers) { return commands_.Delete(numbers); });
  AddCommand("overviewCut", text_id::kCutQuestions, QKeySequence::Cut,
             [this](const Numbers& numbers) { return commands_.Cut(numbers); });
  AddCommand("overviewCopy", text_id::kCopyQuestions, QKeySequence::Copy,
             [this](const Numbers& numbers) { return commands_.Copy(numbers); });
  needSelection_ = actions_;
  AddCommand("overviewPaste", text_id::kPasteQuestions, QKeySequence::Paste,
             [this](const Numbers&) { return commands_.Paste(); });
  AddCommand("overviewInsertFrom", text_id::kInsertFromExam, {},
             [this](const Numbers&) { return commands_.InsertFromExam(this); });
}

/// Its keys are handled by HandleKey, the context only keeps Qt from doing it, too.
void OverviewWindow::AddCommand(const char* name, int text, const QKeySequence& keys, Command command) {
  auto* action = new QAction(Text(text), this);
  action->setObjectName(name);
  action->setShortcut(keys);
  action->setShortcutContext(Qt::WidgetShortcut);
  const QString tip = keys.isEmpty() ? action->text() : action->text() + " (" + keys.toString() + ')';
  action->setToolTip(PlainTip(tip));
  connect(action, &QAction::triggered, this, [this, command = std::move(command)] { Run(command); });
  actions_.push_back(action);
}

/// The keys of the main window work in this window, too. Where both have a command for the same key, that of
/// this window is meant. In the filter's text, keys without Ctrl or Alt edit.
bool OverviewWindow::HandleKey(QEvent& event) {
  if (event.type() != QEvent::ShortcutOverride && event.type() != QEvent::KeyPress) return false;
  const bool executes = event.type() == QEvent::KeyPress;
  const QKeySequence keys(static_cast<QKeyEvent&>(event).keyCombination());
  if (keys == QKeySequence(QKeySequence::Find)) {
    if (executes) filter_->FocusText();
    event.accept();
    return true;
  }
  const auto action = std::ranges::find(actions_, keys, &QAction::shortcut);
  if (action == actions_.end()) return false;
  if (executes) (*action)->trigger();
  event.accept();
  return true;
}

/// Before the table itself uses the keys.
bool OverviewWindow::eventFilter(QObject* watched, QEvent* event) {
  return (watched == table_ && HandleKey(*event)) || QWidget::eventFilter(watched, event);
}

/// What other controls of the window leave.
bool OverviewWindow::event(QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
    return QWidget::event(event);
  const bool isTyping =
      filter_->isAncestorOf(focusWidget()) && static_cast<QKeyEvent*>(event)->modifiers() == Qt::NoModifier;
  return (!isTyping && HandleKey(*event)) || QWidget::event(event);
}

QWidget* OverviewWindow::MakeButtons() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  for (QAction* action : actions_) {
    auto* button = new QToolButton(bar);
    button->setDefaultAction(action);
    button->setFocusPolicy(Qt::TabFocus);
    row->addWidget(button);
  }
  row->addStretch();
  return bar;
}

void OverviewWindow::ShowMenu(const QPoint& position) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addActions({actions_.begin(), actions_.end()});
  menu->popup(table_->viewport()->mapToGlobal(position));
}

void OverviewWindow::Open() {
  show();
  raise();
  activateWindow();
}

void OverviewWindow::ExamChanged() {
  if (isVisible() && !soon_.isActive()) soon_.start();
}

void OverviewWindow::Refresh() {
  {
    const QScopedValueRollback following(refreshing_, true);
    const EditorState& state = editor_.state;
    OverviewSource source{state.document, commands_.LastQuestion(), state.CurrentQuestion(), state.Current()};
    StoreForm(editor_.questions.Form(), state.CurrentKind(), source.edited);
    model_->Update(OverviewRows(source, filter_->Filter()));
    SelectShown();
  }
  ShowCount();
  EnableActions();
}

/// The row of the question that the main window shows is the current one.
void OverviewWindow::SelectShown() {
  const std::optional<int> row = model_->RowOf(editor_.state.CurrentQuestion());
  const QModelIndex current = table_->currentIndex();
  if (!row) return table_->selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
  if (current.isValid() && current.row() == *row) return;
  // Without flags the view would ask for the keys that are down, and with Ctrl (of Ctrl+L) keep other rows.
  table_->selectionModel()->setCurrentIndex(
      model_->index(*row, current.isValid() ? current.column() : OverviewModel::Text),
      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void OverviewWindow::CurrentChanged(const QModelIndex& current) {
  if (refreshing_ || !current.isValid()) return;
  status_->clear();
  editor_.questions.GoToQuestion(model_->QuestionAt(current.row()));
}

std::vector<int> OverviewWindow::Selected() const {
  std::vector<int> numbers;
  for (const int row : table_->SelectedRows()) numbers.push_back(model_->QuestionAt(row));
  return numbers;
}

void OverviewWindow::Select(const std::vector<int>& numbers) {
  QItemSelection rows;
  for (const int number : numbers) {
    if (const auto row = model_->RowOf(number))
      rows.select(model_->index(*row, 0), model_->index(*row, OverviewModel::kColumns - 1));
  }
  table_->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

void OverviewWindow::ShowCount() {
  const int all = commands_.LastQuestion();
  count_->setText(
      ToQString(FillMessage(editor_.state.document.Services().strings.Text(text_id::kQuestionsShown),
                            {FormatInteger(std::min(model_->rowCount(), all)), FormatInteger(all)})));
}

void OverviewWindow::EnableActions() {
  const bool any = table_->selectionModel()->hasSelection();
  for (QAction* action : needSelection_) action->setEnabled(any);
}

/// Moves the selected rows together past the one above or below them.
QString OverviewWindow::MoveBy(int rows) {
  const std::vector<int> selected = table_->SelectedRows();
  if (selected.empty()) return {};
  const int beside = rows < 0 ? selected.front() - 1 : selected.back() + 1;
  if (beside < 0 || beside >= model_->rowCount()) return {};
  const int number = model_->QuestionAt(beside);
  if (number > commands_.LastQuestion()) return {};
  const int count = static_cast<int>(selected.size());
  return commands_.MoveTo(Selected(), rows < 0 ? number : number - count + 1);
}

void OverviewWindow::MoveBefore(int row) {
  Run([this, row](const std::vector<int>& numbers) {
    const int end = commands_.LastQuestion() + 1;
    const int before = row < model_->rowCount() ? std::min(model_->QuestionAt(row), end) : end;
    const auto ahead = std::ranges::lower_bound(numbers, before) - numbers.begin();
    return commands_.MoveTo(numbers, before - static_cast<int>(ahead));
  });
}

/// Of a filtered table, in front of the question that is shown there.
void OverviewWindow::InsertBefore(int row, const QuestionDrag::Insert& insert) {
  Run([this, row, &insert](const std::vector<int>&) {
    const int last = commands_.LastQuestion();
    return insert(row < model_->rowCount() ? std::min(model_->QuestionAt(row) - 1, last) : last);
  });
}

void OverviewWindow::Run(const Command& command) {
  const QString done = command(Selected());
  activateWindow();  // a dialog would leave the main window active, and the next key would go there
  if (done.isEmpty()) return;
  Refresh();
  const QScopedValueRollback following(refreshing_, true);
  if (!commands_.Changed().empty()) {
    Select(commands_.Changed());
    if (const auto row = model_->RowOf(commands_.Changed().front()))
      table_->scrollTo(model_->index(*row, OverviewModel::Number));
  }
  status_->setText(done);
  status_->setAccessibleName(done);
  QAccessibleEvent told(status_, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

void OverviewWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    parentWidget()->activateWindow();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void OverviewWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  regularly_.start();
  Refresh();
}

void OverviewWindow::hideEvent(QHideEvent* event) {
  regularly_.stop();
  KeepPlace();
  QWidget::hideEvent(event);
}

void OverviewWindow::RestorePlace() {
  const WindowPlace place = setting_.Read();
  for (int column = 0; column < OverviewModel::kColumns; ++column) {
    const auto index = static_cast<std::size_t>(column);
    const bool isKept = index < place.columns.size() && place.columns[index] > 0;
    table_->setColumnWidth(column, isKept ? place.columns[index] : kFirstWidths[index]);
  }
  const QSize wanted = place.width > 0 && place.height > 0 ? QSize(place.width, place.height) : kFirstSize;
  resize(wanted.boundedTo(parentWidget()->screen()->availableSize()));
  const QRect kept(place.x, place.y, width(), height());
  if (place.width == 0) {
    PlaceBeside(parentWidget()->frameGeometry());
  } else if (screen()->availableVirtualGeometry().intersects(kept)) {
    move(kept.topLeft());
  }
}

/// Where there is room for it beside the main window, at the right or else at the left.
void OverviewWindow::PlaceBeside(const QRect& window) {
  const QRect room = parentWidget()->screen()->availableGeometry();
  if (window.right() + width() <= room.right()) {
    move(window.right() + 1, window.top());
  } else if (window.left() - width() >= room.left()) {
    move(window.left() - width(), window.top());
  }
}

void OverviewWindow::KeepPlace() {
  WindowPlace place{x(), y(), width(), height(), {}};
  for (int column = 0; column < OverviewModel::kColumns; ++column)
    place.columns.push_back(table_->columnWidth(column));
  setting_.Write(place);
}

}  // namespace quorvantis
