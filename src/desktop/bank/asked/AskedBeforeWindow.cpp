// SPDX-License-Identifier: MIT
#include "desktop/bank/asked/AskedBeforeWindow.h"

#include "desktop/controls/CompanionWindow.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/OwnDirection.h"
#include "desktop/controls/QtText.h"
#include "model/document/ExamServices.h"
#include "platform/texts/AskedTexts.h"
#include "platform/texts/BankTexts.h"
#include "platform/texts/SearchTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHideEvent>
#include <QScopedValueRollback>
#include <QSplitter>

#include <memory>
#include <utility>

namespace quorvantis {
namespace {

constexpr QSize kFirstAskedSize(620, 560);  // pixels
constexpr int kPauseInEditing = 600;        // milliseconds

QTreeView* MakeExamTable(QAbstractItemModel& model, QWidget* parent) {
  auto* table = new QTreeView(parent);
  table->setModel(&model);
  table->setRootIsDecorated(false);
  table->setUniformRowHeights(true);
  table->setAllColumnsShowFocus(true);
  table->setAlternatingRowColors(true);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setItemDelegate(new OwnDirection(table));
  QHeaderView& header = *table->header();
  header.setStretchLastSection(false);
  header.setSectionsMovable(false);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(SharedExamsModel::kExam, QHeaderView::Stretch);
  return table;
}

}  // namespace

AskedBeforeWindow::AskedBeforeWindow(BankDesk& desk, const ExamServices& services, AskedBeforeActions actions,
                                     QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      desk_(desk),
      strings_(services.strings),
      actions_(std::move(actions)),
      place_(services.applicationFolder, services.files, u"asked"),
      digests_(desk.Digest()),
      run_(nullptr),
      uses_(services.strings, nullptr),
      exams_(services.strings, nullptr),
      useTree_(new BranchTree(uses_, this)),
      examTable_(MakeExamTable(exams_, this)),
      copy_(MakeButton("askedCopy", text_id::kAskedCopy, &AskedBeforeWindow::CopyText)),
      again_(MakeButton("askedAgain", text_id::kAskedAgain, &AskedBeforeWindow::CompareOrCancel)),
      bar_(new RunBar(run_, Text(text_id::kAskedRunning), this)),
      summary_(new QLabel(this)) {
  setObjectName("askedBefore");
  setWindowTitle(Text(text_id::kAskedTitle));
  NameControl(useTree_, "askedUses", Text(text_id::kAskedQuestions));
  NameControl(examTable_, "askedExams", Text(text_id::kAskedExams));
  NameControl(summary_, "askedSummary", {});
  summary_->setTextFormat(Qt::PlainText);
  summary_->setWordWrap(true);
  whenQuiet_.setSingleShot(true);
  whenQuiet_.setInterval(kPauseInEditing);
  PlaceControls();
  RestorePlace();
  Connect();
  useTree_->setFocus();
  ShowState();
}

AskedBeforeWindow::~AskedBeforeWindow() {
  if (isVisible()) KeepPlace();
  desk_.disconnect(this);
  run_.disconnect(this);
}

QPushButton* AskedBeforeWindow::MakeButton(const char* name, int text, void (AskedBeforeWindow::*command)()) {
  auto* button = MakePushButton(this, name, Text(text));
  connect(button, &QPushButton::clicked, this, command);
  return button;
}

void AskedBeforeWindow::PlaceControls() {
  auto* sides = new QSplitter(Qt::Vertical, this);
  sides->addWidget(useTree_);
  sides->addWidget(examTable_);
  sides->setStretchFactor(0, 2);
  sides->setStretchFactor(1, 1);
  sides->setChildrenCollapsible(false);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(copy_);
  buttons->addWidget(again_);
  buttons->addWidget(bar_, 1);
  buttons->addStretch();
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(summary_);
  layout->addWidget(sides, 1);
  layout->addLayout(buttons);
}

void AskedBeforeWindow::Connect() {
  connect(&whenQuiet_, &QTimer::timeout, this, &AskedBeforeWindow::Compare);
  connect(&run_, &BackgroundRun::Changed, this, &AskedBeforeWindow::ShowState);
  connect(&desk_, &BankDesk::Updated, this, &AskedBeforeWindow::BankUpdated);
  connect(useTree_, &BranchTree::RowChosen, this, &AskedBeforeWindow::GoTo);
  connect(useTree_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &AskedBeforeWindow::CurrentChanged);
  connect(examTable_->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
    if (!isSettling_) ShowUses();
  });
}

void AskedBeforeWindow::Appear() {
  const bool wasHidden = !isVisible();
  show();
  raise();
  activateWindow();
  if (!wasHidden) return;
  desk_.Update();
  Compare();
}

void AskedBeforeWindow::ExamChanged() {
  if (isVisible()) whenQuiet_.start();
}

void AskedBeforeWindow::BankUpdated() {
  const BankUpdateReport& report = desk_.LastUpdate();
  const bool hasChanged = report.added + report.changed + report.removed > 0;
  if (isVisible() && hasChanged) Compare();
}

void AskedBeforeWindow::CompareOrCancel() {
  run_.IsRunning() ? run_.Cancel() : Compare();
}

void AskedBeforeWindow::Compare() {
  whenQuiet_.stop();
  const auto job = [this, open = actions_.openExam(), &memory = desk_.UseMemory()](
                       const BackgroundRun::Cancelled& isCancelled) -> BackgroundRun::Finish {
    SharedProgress progress = bar_->MakeProgress(isCancelled);
    const auto asked =
        std::make_shared<AskedBefore>(CompareWithBank(desk_, memory, digests_, open, progress));
    return [this, asked] { Take(std::move(*asked)); };
  };
  run_.Start(job);
}

/// The older exam and the question that were chosen stay so.
void AskedBeforeWindow::Take(AskedBefore asked) {
  const std::filesystem::path chosen = SharedExamsModel::ExamOf(examTable_->currentIndex());
  asked_ = std::move(asked);
  {
    const QScopedValueRollback settling(isSettling_, true);
    exams_.Show(asked_);
    examTable_->setCurrentIndex(exams_.index(exams_.RowOf(chosen), 0));
  }
  ShowUses();
  ShowState();
}

void AskedBeforeWindow::ShowUses() {
  const QScopedValueRollback settling(isSettling_, true);
  const QModelIndex current = useTree_->currentIndex();
  const std::size_t question = EarlierUsesModel::QuestionOf(current);
  uses_.Show(asked_, SharedExamsModel::ExamOf(examTable_->currentIndex()));
  useTree_->Unfold();
  if (!current.isValid()) return;
  for (int row = 0; row < uses_.rowCount(); ++row) {
    if (EarlierUsesModel::QuestionOf(uses_.index(row, 0)) == question)
      useTree_->setCurrentIndex(uses_.index(row, 0));
  }
}

void AskedBeforeWindow::ShowState() {
  const QString caption = Text(run_.IsRunning() ? text_id::kCancelSearch : text_id::kAskedAgain);
  again_->setText(caption);
  again_->setAccessibleName(caption);
  copy_->setEnabled(uses_.rowCount() > 0);
  summary_->setText(Summary());
  summary_->setAccessibleName(summary_->text());
}

QString AskedBeforeWindow::Summary() const {
  const BankLikeness& likeness = asked_.likeness;
  if (run_.IsRunning() && !asked_.exam) return Text(text_id::kAskedRunning);
  if (likeness.problem.IsAnything()) return ToQString(ProblemText(likeness.problem, strings_));
  if (likeness.isCancelled) return Text(text_id::kAskedCancelled);
  if (asked_.SameCount() + asked_.VariantCount() == 0)
    return Text(desk_.Folders().empty() ? text_id::kBankNoFolders : text_id::kAskedNone);
  const auto number = [](std::size_t count) { return FormatInteger(static_cast<std::int64_t>(count)); };
  return ToQString(
      FillMessage(strings_.Text(text_id::kAskedSummary),
                  {number(asked_.SameCount()), number(likeness.uses.size()), number(asked_.VariantCount())}));
}

/// The arrow keys lead through the questions of the exam; the bank comes only for a row that is chosen.
void AskedBeforeWindow::CurrentChanged(const QModelIndex& index) {
  if (!isSettling_ && index.isValid())
    actions_.goTo(static_cast<int>(EarlierUsesModel::QuestionOf(index)) + 1);
}

void AskedBeforeWindow::GoTo(const QModelIndex& index) {
  const std::size_t question = EarlierUsesModel::QuestionOf(index);
  const auto use = EarlierUsesModel::UseOf(index);
  if (use) return actions_.showUse(asked_.likeness.uses.at(question).at(*use));
  actions_.goTo(static_cast<int>(question) + 1);
  parentWidget()->window()->activateWindow();
}

void AskedBeforeWindow::CopyText() {
  QGuiApplication::clipboard()->setText(AskedBeforeText(asked_, strings_));
}

bool AskedBeforeWindow::event(QEvent* event) {
  return DecideShortcut(*event) || QDialog::event(event);
}

void AskedBeforeWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) {
    KeepPlace();
    whenQuiet_.stop();
    run_.Cancel();
  }
  QDialog::hideEvent(event);
}

void AskedBeforeWindow::RestorePlace() {
  resize(kFirstAskedSize);
  const WindowPlace kept = place_.Read();
  PlaceCompanion(*this, *parentWidget(), {kept.x, kept.y, kept.width, kept.height});
}

void AskedBeforeWindow::KeepPlace() const {
  place_.Write({x(), y(), width(), height()});
}

QString AskedBeforeWindow::Text(int number) const {
  return ToQString(strings_.Text(number));
}

}  // namespace quorvantis
