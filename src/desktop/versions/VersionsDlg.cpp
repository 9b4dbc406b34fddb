// SPDX-License-Identifier: MIT
#include "desktop/versions/VersionsDlg.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "desktop/controls/SharedProgress.h"
#include "platform/texts/ImportTexts.h"
#include "platform/texts/PrintTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "platform/texts/VersionTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "versions/folder/VersionReport.h"
#include "versions/make/TargetFolder.h"
#include "versions/plan/VersionNames.h"
#include "versions/plan/VersionPlanner.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QDesktopServices>
#include <QFileDialog>
#include <QHeaderView>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QTextOption>
#include <QUrl>

#include <chrono>
#include <utility>

namespace quorvantis {
namespace {

constexpr QSize kVersionsSize(980, 680);  // pixels
constexpr std::chrono::milliseconds kPauseInTyping(200);
constexpr std::chrono::milliseconds kBetweenLooksAtRun(100);

/// Why there is no plan, for the user; empty if there is one.
std::u16string ProblemWithPlan(const PlanOutcome& outcome, const std::filesystem::path& exam,
                               const StringTable& strings) {
  switch (outcome.problem) {
    case PlanOutcome::Problem::NoQuestions:
      return FillMessage(strings.Text(text_id::kVersionsNoQuestions), {PathToText(exam)});
    case PlanOutcome::Problem::TooFewOrders:
      return FillMessage(strings.Text(text_id::kVersionsTooFew),
                         {FormatInteger(static_cast<std::int64_t>(outcome.possible))});
    case PlanOutcome::Problem::None:
      break;
  }
  return {};
}

QString Joined(const std::vector<std::u16string>& lines) {
  QStringList list;
  for (const std::u16string& line : lines) list.append(ToQString(line));
  return list.join(u'\n');
}

}  // namespace

VersionsDlg::VersionsDlg(const ExamPaper& exam, std::filesystem::path examFile, VersionsServices program,
                         const StringTable& strings, QWidget* parent)
    : QDialog(parent),
      exam_(exam),
      questionCount_(exam_.LastCountedQuestion()),
      examFile_(std::move(examFile)),
      program_(std::move(program)),
      strings_(strings),
      choices_(new VersionChoices(strings, this)),
      kept_(new KeptParts(exam_, questionCount_, strings, this)),
      model_(new PlanModel(exam_, this)),
      plan_(new QTableView(this)),
      report_(new QPlainTextEdit(this)),
      folder_(new QLineEdit(PathToQString(UsualVersionFolder(examFile_)), this)),
      chooseFolder_(
          MakeButton("versionChooseFolder", text_id::kVersionsChooseFolder, &VersionsDlg::ChooseFolder)),
      status_(new QLabel(this)),
      bar_(new QProgressBar(this)),
      openFolder_(MakeButton("versionOpenFolder", text_id::kVersionsOpenFolder, &VersionsDlg::OpenFolder)),
      make_(MakeButton("versionMake", text_id::kVersionsMake, &VersionsDlg::Make)),
      close_(MakeButton("versionClose", text_id::kClose, &VersionsDlg::reject)),
      offer_(MakeOffer()),
      run_(this) {
  setObjectName("versions");
  setWindowTitle(Text(text_id::kVersionsWindow));
  setWindowModality(Qt::WindowModal);
  SetUpPlan();
  auto* sides = new QSplitter(this);
  sides->addWidget(PlaceLeft());
  sides->addWidget(PlaceRight());
  sides->setChildrenCollapsible(false);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(sides, 1);
  layout->addWidget(offer_);
  layout->addLayout(PlaceFolder());
  layout->addLayout(PlaceBottom());
  resize(kVersionsSize.boundedTo(screen()->availableSize()));
  whenChanged_.setSingleShot(true);
  whenChanged_.setInterval(kPauseInTyping);
  connect(choices_, &VersionChoices::Changed, &whenChanged_, qOverload<>(&QTimer::start));
  connect(kept_, &KeptParts::Changed, &whenChanged_, qOverload<>(&QTimer::start));
  connect(folder_, &QLineEdit::textChanged, openFolder_, &QWidget::hide);
  connect(&whenChanged_, &QTimer::timeout, this, &VersionsDlg::ShowPlan);
  connect(&whileRunning_, &QTimer::timeout, this, [this] { bar_->setValue(*done_); });
  connect(&run_, &BackgroundRun::Changed, this, &VersionsDlg::ShowRun);
  make_->setDefault(true);
  openFolder_->hide();
  offer_->hide();
  TakeEarlierPlan();
  ShowRun();
  ShowPlan();
}

VersionsDlg::~VersionsDlg() = default;

QPushButton* VersionsDlg::MakeButton(const char* name, int text, void (VersionsDlg::*command)()) {
  auto* button = MakePushButton(this, name, Text(text));
  connect(button, &QPushButton::clicked, this, command);
  return button;
}

QWidget* VersionsDlg::PlaceLeft() {
  auto* side = new QWidget(this);
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(choices_);
  layout->addWidget(kept_, 1);
  return side;
}

QWidget* VersionsDlg::PlaceRight() {
  auto* side = new QSplitter(Qt::Vertical, this);
  NameControl(report_, "versionReport", Text(text_id::kVersionsReport));
  report_->setReadOnly(true);
  report_->setTabChangesFocus(true);
  // Lines that begin with the name of a version run as the language does.
  QTextOption option = report_->document()->defaultTextOption();
  option.setTextDirection(layoutDirection());
  option.setAlignment(layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft);
  report_->document()->setDefaultTextOption(option);
  side->addWidget(plan_);
  side->addWidget(report_);
  side->setStretchFactor(0, 2);
  side->setStretchFactor(1, 1);
  side->setChildrenCollapsible(false);
  return side;
}

void VersionsDlg::SetUpPlan() {
  NameControl(plan_, "versionPlan", Text(text_id::kVersionsPlan));
  plan_->setModel(model_);
  plan_->setTabKeyNavigation(false);
  plan_->setCornerButtonEnabled(false);
  plan_->horizontalHeader()->setDefaultSectionSize(plan_->fontMetrics().averageCharWidth() * 12);
  plan_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  plan_->verticalHeader()->setDefaultSectionSize(plan_->fontMetrics().height() + 6);
}

QLayout* VersionsDlg::PlaceFolder() {
  auto* label = new QLabel(Text(text_id::kVersionsFolder), this);
  label->setBuddy(folder_);
  NameControl(folder_, "versionFolder", label->text());
  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(folder_, 1);
  row->addWidget(chooseFolder_);
  return row;
}

QLayout* VersionsDlg::PlaceBottom() {
  NameControl(status_, "versionStatus", {});
  status_->setTextFormat(Qt::PlainText);
  status_->setWordWrap(true);
  NameControl(bar_, "versionProgress", Text(text_id::kVersionsMaking));
  bar_->setRange(0, SharedProgress::kWhole);
  auto* row = new QHBoxLayout;
  row->addWidget(status_, 1);
  for (QWidget* widget : std::initializer_list<QWidget*>{bar_, openFolder_, make_, close_})
    row->addWidget(widget);
  return row;
}

QWidget* VersionsDlg::MakeOffer() {
  auto* offer = new QWidget(this);
  NameControl(offer, "versionOffer", {});
  auto* sign = new QLabel(offer);
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
  sign->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(size));
  auto* text = new QLabel(Text(text_id::kCheckPrintWrong), offer);
  text->setTextFormat(Qt::PlainText);
  auto* check = MakeButton("versionCheck", text_id::kVersionsCheck, &VersionsDlg::LeaveForCheck);
  check->setToolTip(PlainTip(Text(text_id::kVersionsCheckTip)));
  auto* row = new QHBoxLayout(offer);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(sign);
  row->addWidget(text);
  row->addWidget(check);
  row->addStretch();
  return offer;
}

void VersionsDlg::OfferCheck(bool isOffered) {
  offer_->setVisible(isOffered);
}

/// This window holds the main one, and with it that of the check, until it is closed.
void VersionsDlg::LeaveForCheck() {
  if (run_.IsRunning()) return;
  QDialog::reject();
  emit CheckWanted();
}

/// The exam may have changed since: pins of what it has no longer are ignored.
void VersionsDlg::TakeEarlierPlan() {
  const auto record = program_.planIn(Folder());
  if (!record) return;
  choices_->Show(record->request);
  kept_->ShowPins(record->request.pins);
}

VersionRequest VersionsDlg::Chosen() const {
  VersionRequest request = choices_->Chosen();
  request.pins = kept_->Pins();
  return request;
}

void VersionsDlg::ShowPlan() {
  const VersionRequest request = Chosen();
  std::u16string problem = ProblemWithNames(request.names, strings_);
  PlanOutcome outcome;
  if (problem.empty()) {
    outcome = PlanVersions(exam_, questionCount_, request);
    problem = ProblemWithPlan(outcome, examFile_, strings_);
  }
  hasPlan_ = problem.empty();
  const auto report = hasPlan_ ? PlanReport(exam_, request, outcome.plan, outcome.chance, strings_)
                               : std::vector<std::u16string>{problem};
  report_->setPlainText(Joined(report));
  if (hasPlan_) kept_->ShowReasons(outcome.plan.pinned);
  model_->Show(hasPlan_ ? std::move(outcome.plan) : VersionPlan());
  make_->setEnabled(hasPlan_ && !run_.IsRunning());
}

void VersionsDlg::ChooseFolder() {
  QFileDialog dialog(this, Text(text_id::kVersionsFolder), PathToQString(Folder().parent_path()));
  dialog.setObjectName("versionFolderDialog");
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ShowDirsOnly);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const std::filesystem::path chosen = QStringToPath(dialog.selectedFiles().constFirst());
  // Versions get a folder of their own, unless they were in the chosen one before.
  const bool isTheirs = program_.problemWith(chosen, true).empty();
  folder_->setText(PathToQString(isTheirs ? chosen : chosen / UsualVersionFolder(examFile_).filename()));
  TakeEarlierPlan();
  ShowPlan();
}

void VersionsDlg::OpenFolder() {
  QDesktopServices::openUrl(QUrl::fromLocalFile(PathToQString(Folder())));
}

void VersionsDlg::Make() {
  ShowPlan();
  if (!hasPlan_ || run_.IsRunning()) return;
  VersionOrder order{examFile_, Folder(), Chosen()};
  if (!program_.problemWith(order.folder, false).empty()) {
    const std::u16string problem = program_.problemWith(order.folder, true);
    if (!problem.empty()) return Tell(problem);
    const std::u16string question =
        FillMessage(strings_.Text(text_id::kVersionsReplaceAsk), {PathToText(order.folder)});
    order.replaces = program_.askYesNo(question);
    if (!order.replaces) return;
  }
  *done_ = 0;
  openFolder_->hide();
  Tell(strings_.Text(text_id::kVersionsMaking));
  run_.Start([this, order, make = program_.make, done = done_](const BackgroundRun::Cancelled& isCancelled) {
    SharedProgress progress(done, isCancelled);
    auto made = std::make_shared<const MadeVersions>(make(order, progress));
    return [this, made] { TakeMade(*made); };
  });
}

void VersionsDlg::TakeMade(const MadeVersions& made) {
  if (!made.problem.empty()) return Tell(made.problem);
  const std::u16string seed = FromQString(QString::number(made.record.request.seed));
  const auto count = static_cast<std::int64_t>(made.record.plan.versions.size());
  Tell(FillMessage(strings_.Text(text_id::kVersionsMade),
                   {FormatInteger(count), PathToText(examFile_.filename()), PathToText(Folder()), seed}));
  report_->setPlainText(Joined(made.report));
  openFolder_->show();
  openFolder_->setFocus();
}

void VersionsDlg::ShowRun() {
  const bool isRunning = run_.IsRunning();
  for (QWidget* widget : std::initializer_list<QWidget*>{choices_, kept_, folder_, chooseFolder_, offer_})
    widget->setEnabled(!isRunning);
  make_->setEnabled(!isRunning && hasPlan_);
  bar_->setVisible(isRunning);
  bar_->setValue(0);
  close_->setText(Text(isRunning ? text_id::kCancel : text_id::kClose));
  close_->setAccessibleName(close_->text());
  if (isRunning) {
    whileRunning_.start(kBetweenLooksAtRun);
    close_->setFocus();
  } else {
    whileRunning_.stop();
  }
}

void VersionsDlg::reject() {
  if (run_.IsRunning()) return run_.Cancel();
  QDialog::reject();
}

void VersionsDlg::Tell(const std::u16string& text) {
  status_->setText(ToQString(text));
  status_->setAccessibleName(status_->text());
  QAccessibleEvent told(status_, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

/// What is typed is seen from the folder of the exam.
std::filesystem::path VersionsDlg::Folder() const {
  return (examFile_.parent_path() / QStringToPath(folder_->text().trimmed())).lexically_normal();
}

QString VersionsDlg::Text(int number) const {
  return ToQString(strings_.Text(number));
}

}  // namespace quorvantis
