// SPDX-License-Identifier: MIT
#include "desktop/check/CheckWindow.h"

#include "desktop/controls/CompanionWindow.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "model/document/ExamServices.h"
#include "platform/texts/CheckTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QBoxLayout>
#include <QHideEvent>
#include <QScopedValueRollback>

#include <algorithm>

namespace quorvantis {
namespace {

constexpr QSize kFirstCheckSize(560, 460);  // pixels

}  // namespace

CheckWindow::CheckWindow(ExamChecker& checker, const ExamServices& services, ShowPlace showPlace,
                         QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      checker_(checker),
      strings_(services.strings),
      showPlace_(std::move(showPlace)),
      place_(services.applicationFolder, services.files, u"check"),
      model_(services.strings, *this, nullptr),
      tree_(new BranchTree(model_, this)),
      ignore_(new QPushButton(Text(text_id::kCheckIgnore), this)),
      showIgnored_(new QCheckBox(Text(text_id::kCheckShowIgnored), this)),
      summary_(new QLabel(this)) {
  setObjectName("checkWindow");
  setWindowTitle(Text(text_id::kCheckTitle));
  NameControl(tree_, "findings", windowTitle());
  NameControl(ignore_, "ignoreFinding", ignore_->text());
  NameControl(showIgnored_, "showIgnored", showIgnored_->text());
  NameControl(summary_, "checkSummary", {});
  summary_->setTextFormat(Qt::PlainText);
  summary_->setWordWrap(true);
  ignore_->setAutoDefault(false);
  PlaceControls();
  RestorePlace();
  connect(&checker_, &ExamChecker::Changed, this, &CheckWindow::Refresh);
  connect(showIgnored_, &QCheckBox::toggled, this, &CheckWindow::Refresh);
  connect(ignore_, &QPushButton::clicked, this, &CheckWindow::IgnoreCurrent);
  connect(tree_, &BranchTree::RowChosen, this, [this](const QModelIndex& index) {
    GoTo(index);
    parentWidget()->window()->activateWindow();
  });
  connect(tree_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &CheckWindow::CurrentChanged);
  tree_->setFocus();
  Refresh();
}

CheckWindow::~CheckWindow() {
  if (isVisible()) KeepPlace();
  checker_.disconnect(this);
}

void CheckWindow::PlaceControls() {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tree_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(ignore_);
  buttons->addWidget(showIgnored_);
  buttons->addStretch();
  layout->addLayout(buttons);
  layout->addWidget(summary_);
}

QString CheckWindow::Text(int number) const {
  return ToQString(strings_.Text(number));
}

void CheckWindow::Appear() {
  show();
  raise();
  activateWindow();
  summary_->setText(Summary());
}

/// The finding that was chosen stays so, or the one in its place becomes it.
void CheckWindow::Refresh() {
  const QScopedValueRollback settling(refreshing_, true);
  const QModelIndex current = tree_->currentIndex();
  const int branch = current.parent().isValid() ? current.parent().row() : current.row();
  const int row = current.parent().isValid() ? current.row() : -1;
  model_.Show(checker_, showIgnored_->isChecked());
  tree_->Unfold();
  if (current.isValid() || model_.rowCount() > 0) {
    const QModelIndex parent = model_.index(std::clamp(branch, 0, std::max(model_.rowCount() - 1, 0)), 0);
    const QModelIndex child =
        model_.index(std::clamp(row, 0, std::max(model_.rowCount(parent) - 1, 0)), 0, parent);
    tree_->setCurrentIndex(child.isValid() ? child : parent);
  }
  summary_->setText(Summary());
  EnableIgnore();
}

QString CheckWindow::Summary() const {
  if (checker_.Checked() == nullptr) return Text(text_id::kCheckRunning);
  const int wrong = checker_.CountOf(Severity::Wrong);
  const int doubtful = checker_.CountOf(Severity::Doubtful);
  const int hints = checker_.CountOf(Severity::Hint);
  QString summary = Text(text_id::kCheckNothing);
  if (wrong + doubtful + hints > 0) {
    summary = ToQString(FillMessage(strings_.Text(text_id::kCheckCounts),
                                    {FormatInteger(wrong), FormatInteger(doubtful), FormatInteger(hints)}));
  }
  if (const auto sum = checker_.SumOfScores())
    summary += ' ' + ToQString(FillMessage(strings_.Text(text_id::kCheckSum), {FormatScore(*sum)}));
  return summary;
}

void CheckWindow::CurrentChanged(const QModelIndex& index) {
  if (refreshing_) return;
  EnableIgnore();
  GoTo(index);
}

void CheckWindow::GoTo(const QModelIndex& index) {
  if (const auto finding = FindingsModel::FindingOf(index)) {
    showPlace_(checker_.Findings().at(*finding).finding.place);
  } else if (index.isValid()) {
    const int question = FindingsModel::QuestionOf(index);
    showPlace_({question, question == 0 ? ExamFieldName::Title : ExamFieldName::QuestionText});
  }
}

void CheckWindow::EnableIgnore() {
  const auto finding = FindingsModel::FindingOf(tree_->currentIndex());
  const bool isIgnored = finding && checker_.Findings().at(*finding).isIgnored;
  const QString caption = Text(isIgnored ? text_id::kCheckRecall : text_id::kCheckIgnore);
  ignore_->setText(caption);
  ignore_->setAccessibleName(caption);
  ignore_->setEnabled(finding.has_value());
}

void CheckWindow::IgnoreCurrent() {
  const auto finding = FindingsModel::FindingOf(tree_->currentIndex());
  if (finding) checker_.Ignore(*finding, !checker_.Findings().at(*finding).isIgnored);
}

bool CheckWindow::event(QEvent* event) {
  return DecideShortcut(*event) || QDialog::event(event);
}

void CheckWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) KeepPlace();
  QDialog::hideEvent(event);
}

void CheckWindow::RestorePlace() {
  resize(kFirstCheckSize);
  move(PlaceBeside(*parentWidget(), size()));
  const WindowPlace kept = place_.Read();
  ReturnToPlace(*this, {kept.x, kept.y, kept.width, kept.height});
}

void CheckWindow::KeepPlace() const {
  place_.Write({x(), y(), width(), height()});
}

}  // namespace quorvantis
