// SPDX-License-Identifier: MIT
#include "desktop/dialogs/CScoreSetupDlg.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/FieldKeys.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/EditorTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>

namespace quorvantis {
namespace {

constexpr int kGap = 10;
constexpr int kModeGap = 4;
constexpr int kTitleBar = 40;   // roughly what a window manager adds to the height
constexpr int kGapColumn = 5;   // between the end of a range and its score
constexpr int kLastColumn = 8;  // takes the rest

RangeBar::Texts BarTexts(const StringTable& strings) {
  return {ToQString(FillMessage(strings.Text(text_id::kTotalScore), {u"%1"})),
          ToQString(strings.Text(text_id::kNoQuestions))};
}

bool IsSwallowedKey(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
}

/// Scrolls on a screen that is too small for all rows; otherwise it is invisible.
QScrollArea* MakeScrollable(QWidget* list) {
  auto* area = new QScrollArea;
  area->setWidget(list);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
  area->setFocusPolicy(Qt::NoFocus);
  return area;
}

/// Neither Enter nor the dialog itself presses it.
QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption) {
  auto* button = new QPushButton(caption, parent);
  NameControl(button, name, caption);
  button->setAutoDefault(false);
  return button;
}

}  // namespace

CScoreSetupDlg::CScoreSetupDlg(ScoreSetup& setup, SetupOwner& owner, const StringTable& strings,
                               QWidget* parent)
    : QDialog(parent),
      setup_(setup),
      steps_(setup),
      owner_(owner),
      strings_(strings),
      modes_(new QButtonGroup(this)),
      group_(new QGroupBox(Text(text_id::kScoreGroup), this)),
      bar_(new RangeBar(setup, BarTexts(strings), group_)) {
  setObjectName("scoreSetupDialog");
  setWindowTitle(Text(text_id::kScoreSettings));
  setWindowModality(Qt::WindowModal);
  auto* column = new QVBoxLayout(this);
  column->setSpacing(kGap);
  column->addLayout(MakeModes());
  MakeRanges();
  column->addWidget(group_, 1);
  column->addLayout(MakeButtons());
  MakeMinimumQuestions();
  for (QWidget* control : findChildren<QWidget*>()) control->installEventFilter(this);
  AddHistoryKeys();
  ShowFields();
  resize(sizeHint().boundedTo(screen()->availableSize() - QSize(0, kTitleBar)));
  modes_->checkedButton()->setFocus();
}

QString CScoreSetupDlg::Text(int number) const {
  return ToQString(strings_.Text(number));
}

QLayout* CScoreSetupDlg::MakeModes() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(kModeGap);
  const auto add = [&](const char* name, int caption, int value) {
    auto* button = new QRadioButton(Text(caption), this);
    NameControl(button, name, button->text());
    modes_->addButton(button, value);
    rows->addWidget(button);
  };
  add("sameScores", text_id::kSameScores, 0);
  add("assignedScores", text_id::kAssignedScore, 1);
  connect(modes_, &QButtonGroup::idClicked, this, [this](int value) {
    setup_.ClickRadio(value);
    steps_.Look();
    ShowFields();
  });
  return rows;
}

void CScoreSetupDlg::MakeRanges() {
  group_->setObjectName("scoreGroup");
  NameControl(bar_, "rangeBar", group_->title());
  auto* column = new QVBoxLayout(group_);
  column->setSpacing(kGap);
  column->addWidget(bar_);
  auto* list = new QWidget;
  auto* grid = new QGridLayout(list);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kGap);
  grid->setColumnMinimumWidth(kGapColumn, 2 * kGap);
  grid->setColumnStretch(kLastColumn, 1);
  for (int range = 1; range <= static_cast<int>(kScoreRanges); ++range) {
    const RangeRow& row = rows_.emplace_back(range, strings_, list);
    row.AddTo(*grid, range);
    connect(row.to, &QLineEdit::textChanged, this,
            [this, range](const QString& text) { EndChanged(range, text); });
    connect(row.score, &QLineEdit::textChanged, this,
            [this, range](const QString& text) { ScoreChanged(range, text); });
  }
  column->addWidget(MakeScrollable(list));
  column->addStretch();
  connect(bar_, &RangeBar::EndDragged, this,
          [this](int range, int question) { Row(range).to->setText(QString::number(question)); });
}

/// Deliberately hidden and unused: language libraries still have its caption.
void CScoreSetupDlg::MakeMinimumQuestions() {
  QLabel* label = MakeLabel(this, "minimumQuestionsLabel", Text(text_id::kMinimumQuestions));
  auto* edit = new FilteredEdit(DigitFieldTakes, this);
  NameControl(edit, "minimumQuestions", label->text());
  for (QWidget* control : {static_cast<QWidget*>(label), static_cast<QWidget*>(edit)}) {
    control->setEnabled(false);
    control->hide();
  }
}

QLayout* CScoreSetupDlg::MakeButtons() {
  QPushButton* scan = MakeButton(this, "scanQuestions", Text(text_id::kScanQuestions));
  QPushButton* ok = MakeButton(this, "ok", Text(text_id::kOk));
  QPushButton* cancel = MakeButton(this, "cancel", Text(text_id::kCancel));
  connect(scan, &QPushButton::clicked, this, [this] { owner_.PreviewFromSetup(1); });
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* row = new QHBoxLayout;
  row->addWidget(scan);
  row->addStretch();
  row->addWidget(ok);
  row->addWidget(cancel);
  return row;
}

RangeRow& CScoreSetupDlg::Row(int range) {
  return rows_[static_cast<std::size_t>(range - 1)];
}

void CScoreSetupDlg::ShowFields() {
  const QScopedValueRollback loading(loading_, true);
  modes_->button(setup_.Fields().radio)->setChecked(true);
  for (RangeRow& row : rows_) row.Show(setup_.Fields());
  ShowSums();
}

void CScoreSetupDlg::ShowSums() {
  for (RangeRow& row : rows_) row.ShowSum(setup_.Typed());
  bar_->Refresh();
}

void CScoreSetupDlg::EndChanged(int range, const QString& text) {
  if (!loading_) {
    setup_.TypeEnd(range, FromQString(text));
    steps_.Look();
    ShowFields();
  }
  Row(range).to->end(false);
}

void CScoreSetupDlg::ScoreChanged(int range, const QString& text) {
  if (loading_) return;
  setup_.TypeScore(range, FromQString(text));
  steps_.Look();
  ShowSums();
}

void CScoreSetupDlg::AddHistoryKeys() {
  const auto add = [this](const Keys& keys, bool (SetupSteps::*step)()) {
    for (const QKeySequence& key : keys)
      connect(new QShortcut(key, this), &QShortcut::activated, this, [this, step] {
        if ((steps_.*step)()) ShowFields();
      });
  };
  add(UndoKeys(), &SetupSteps::Undo);
  add(RedoKeys(), &SetupSteps::Redo);
}

void CScoreSetupDlg::done(int result) {
  owner_.PreviewFromSetup(0);
  QDialog::done(result);
}

bool CScoreSetupDlg::event(QEvent* event) {
  return IsSwallowedKey(*event) || QDialog::event(event);
}

bool CScoreSetupDlg::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && IsHistoryKey(static_cast<QKeyEvent&>(*event))) {
    event->ignore();  // otherwise a field would take the key for itself
    return true;
  }
  return IsSwallowedKey(*event) || QDialog::eventFilter(watched, event);
}

}  // namespace quorvantis
