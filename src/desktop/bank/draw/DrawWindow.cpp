// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/DrawWindow.h"

#include "bank/draw/DrawTexts.h"
#include "desktop/bank/draw/TypedOrder.h"
#include "desktop/controls/CompanionWindow.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "model/document/FrameSetExam.h"
#include "model/document/ServicesWith.h"
#include "platform/texts/DrawTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QHideEvent>

#include <initializer_list>
#include <utility>

namespace quorvantis {
namespace {

constexpr QSize kFirstDrawSize(860, 640);  // pixels
constexpr int kFirstColumn = 290;          // pixels
constexpr int kSecondColumn = 180;

std::u16string CountText(std::size_t count) {
  return FormatInteger(static_cast<std::int64_t>(count));
}

}  // namespace

DrawWindow::DrawWindow(BankPlace place, const ExamServices& services, const FileDigest& digest,
                       DrawActions actions, QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      place_(std::move(place)),
      services_(services),
      digest_(digest),
      strings_(services.strings),
      actions_(std::move(actions)),
      setting_(services.applicationFolder, services.files, services.codePage),
      windowPlace_(services.applicationFolder, services.files, u"draw"),
      run_(nullptr),
      look_(nullptr),
      wishes_(new DrawWishFields(strings_, this)),
      conditions_(new DrawConditionFields(strings_, this)),
      draw_(MakeButton("drawNow", text_id::kDrawNow)),
      cancel_(MakeButton("drawCancel", text_id::kCancel)),
      bar_(new RunBar(run_, Text(text_id::kDrawRunning), this)),
      status_(new QLabel(this)),
      pane_(new DrawnPane(strings_, this)) {
  setObjectName("drawWindow");
  setWindowTitle(Text(text_id::kDrawTitle));
  NameControl(status_, "drawStatus", {});
  status_->setTextFormat(Qt::PlainText);
  status_->setWordWrap(true);
  draw_->setDefault(true);
  PlaceControls();
  RestorePlace();
  Connect();
  const TypedDraw typed = setting_.Read();
  wishes_->Show(typed.wishes);
  conditions_->Show(typed);
  ShowRun();
}

DrawWindow::~DrawWindow() {
  if (isVisible()) Keep();
  for (BackgroundRun* run : {&run_, &look_}) {
    run->disconnect();
    run->Drop();
  }
}

QPushButton* DrawWindow::MakeButton(const char* name, int text) {
  return MakePushButton(this, name, Text(text));
}

void DrawWindow::PlaceControls() {
  auto* ofTheRun = new QHBoxLayout;
  ofTheRun->addWidget(draw_);
  ofTheRun->addWidget(cancel_);
  ofTheRun->addWidget(bar_);
  ofTheRun->addWidget(status_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(wishes_);
  layout->addWidget(conditions_);
  layout->addLayout(ofTheRun);
  layout->addWidget(pane_, 1);
}

void DrawWindow::Connect() {
  connect(draw_, &QPushButton::clicked, this, &DrawWindow::Draw);
  connect(cancel_, &QPushButton::clicked, &run_, [this] { run_.Cancel(); });
  connect(&run_, &BackgroundRun::Changed, this, &DrawWindow::ShowRun);
  connect(pane_, &DrawnPane::ExchangeWished, this, &DrawWindow::Exchange);
  connect(pane_, &DrawnPane::PageWished, this, &DrawWindow::ShowPage);
  connect(pane_, &DrawnPane::InsertWished, this, &DrawWindow::Insert);
  connect(pane_, &DrawnPane::Arranged, this, &DrawWindow::ListArranged);
}

void DrawWindow::Appear() {
  const bool wasHidden = !isVisible();
  show();
  raise();
  activateWindow();
  if (!wasHidden) return;
  wishes_->Begin();
  LookForChoices();
}

/// Again after each draw, which may have found new exams.
void DrawWindow::LookForChoices() {
  look_.Start([this](const BackgroundRun::Cancelled& isCancelled) -> BackgroundRun::Finish {
    const auto choices = std::make_shared<const DrawChoices>(ChoicesOf(place_, services_.files, isCancelled));
    return [this, choices] { Offer(*choices); };
  });
}

/// A list that is open stays so unless it changes.
void DrawWindow::Offer(const DrawChoices& choices) {
  if (choices == offered_) return;
  offered_ = choices;
  QStringList tags;
  for (const std::u16string& tag : choices.tags) tags.append(ToQString(tag));
  wishes_->Offer(std::move(tags));
  conditions_->Offer(choices.folders);
}

TypedDraw DrawWindow::Typed() const {
  TypedDraw typed;
  typed.wishes = wishes_->Typed();
  conditions_->AddTo(typed);
  return typed;
}

void DrawWindow::Draw() {
  if (run_.IsRunning()) return;
  const TypedDraw typed = Typed();
  const TypedOrder read = OrderOf(typed, strings_);
  if (!read.problem.empty()) return Tell(read.problem);
  setting_.Write(typed);
  const auto exam = typed.leavesOutOpenExam ? actions_.openExam() : nullptr;
  Tell(strings_.Text(text_id::kDrawRunning));
  run_.Start([this, order = read.order, exam](const BackgroundRun::Cancelled& isCancelled) {
    SharedProgress progress = bar_->MakeProgress(isCancelled);
    ExamServices services = ServicesWith(services_, progress);
    const auto run = std::make_shared<DrawRun>(UpdateAndDraw(place_, services, digest_, order, exam.get()));
    return [this, run] { TakeDrawn(std::move(*run)); };
  });
}

std::u16string DrawWindow::WhyNoList(const DrawRun& run) const {
  if (run.list.problem.IsAnything()) return ProblemText(run.list.problem, strings_);
  if (!run.hasFolders) return strings_.Text(text_id::kDrawNoFolders);
  if (run.list.isCancelled) return strings_.Text(text_id::kDrawCancelled);
  if (run.list.hasChanged) return strings_.Text(text_id::kDrawChanged);
  return run.list.rows.empty() ? strings_.Text(text_id::kDrawNothing) : std::u16string();
}

void DrawWindow::TakeDrawn(DrawRun run) {
  const std::u16string problem = WhyNoList(run);
  const bool isReported = run.hasFolders && !run.list.isCancelled && !run.list.problem.IsAnything();
  if (isReported) pane_->Report(ReportOf(run.list, run.unreadableFolders, strings_));
  LookForChoices();
  if (!problem.empty()) return Tell(problem);
  const std::u16string seed = FromQString(QString::number(run.list.order.request.seed));
  Tell(FillMessage(strings_.Text(text_id::kDrawDone), {CountText(run.list.rows.size()), seed}));
  pane_->Put(std::move(run.list));
}

/// The list is copied, so it may be looked at meanwhile.
void DrawWindow::Exchange() {
  const auto place = pane_->Chosen();
  if (!place || run_.IsRunning()) return;
  Tell(strings_.Text(text_id::kDrawRunning));
  run_.Start([this, list = pane_->List(),
              place = *place](const BackgroundRun::Cancelled& isCancelled) -> BackgroundRun::Finish {
    SharedProgress progress = bar_->MakeProgress(isCancelled);
    ExamServices services = ServicesWith(services_, progress);
    const auto other =
        std::make_shared<const AnotherDrawn>(UpdateAndExchange(place_, services, digest_, list, place));
    if (isCancelled()) return [this] { Tell(strings_.Text(text_id::kDrawCancelled)); };
    return [this, place, other] { TakeExchanged(place, *other); };
  });
}

void DrawWindow::TakeExchanged(std::size_t place, const AnotherDrawn& other) {
  if (other.problem.IsAnything()) return Tell(ProblemText(other.problem, strings_));
  const DrawnRow& row = pane_->List().rows.at(place);
  if (!other.row) {
    const DrawWish& wish = pane_->List().order.request.wishes.at(row.drawn.wish);
    return Tell(FillMessage(strings_.Text(text_id::kDrawNoOther), {WishText(wish, other.outcome, strings_)}));
  }
  pane_->Exchange(place, other);
  ListArranged();
}

void DrawWindow::ShowPage() {
  if (const auto place = pane_->Chosen()) actions_.show(pane_->List().rows.at(*place).question);
}

void DrawWindow::Insert() {
  std::vector<BankQuestion> questions;
  questions.reserve(pane_->List().rows.size());
  for (const DrawnRow& row : pane_->List().rows) questions.push_back(row.question);
  if (questions.empty() || run_.IsRunning()) return;
  const DrawnInsertion insertion = actions_.insert(questions);
  activateWindow();  // some systems return to the main window after a message
  if (insertion.isRefused) return;
  if (insertion.gone.size() < questions.size()) conditions_->RenewSeed();
  pane_->TakeInserted(insertion.gone);
  std::u16string told = FromQString(insertion.told);
  if (!insertion.gone.empty()) {
    if (!told.empty()) told += u' ';
    told += FillMessage(strings_.Text(text_id::kDrawStays), {CountText(insertion.gone.size())});
  }
  Tell(told);
}

/// What the last command told no longer holds; what each wish found may be another.
void DrawWindow::ListArranged() {
  Tell({});
  pane_->Report(ReportOf(pane_->List(), {}, strings_));
}

void DrawWindow::ShowRun() {
  const bool isRunning = run_.IsRunning();
  const bool wasPressed = draw_->hasFocus();
  if (!isRunning && cancel_->hasFocus()) pane_->FocusList();
  cancel_->setVisible(isRunning);
  if (isRunning && wasPressed) cancel_->setFocus();
  draw_->setEnabled(!isRunning);
  pane_->SetBusy(isRunning);
}

void DrawWindow::Tell(const std::u16string& text) {
  status_->setText(ToQString(text));
  status_->setAccessibleName(status_->text());
  QAccessibleEvent told(status_, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

void DrawWindow::reject() {
  if (run_.IsRunning()) return run_.Cancel();
  QDialog::reject();
}

bool DrawWindow::event(QEvent* event) {
  return DecideShortcut(*event) || QDialog::event(event);
}

void DrawWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) {
    Keep();
    run_.Cancel();
  }
  QDialog::hideEvent(event);
}

void DrawWindow::RestorePlace() {
  resize(kFirstDrawSize);
  const WindowPlace kept = windowPlace_.Read();
  PlaceCompanion(*this, *parentWidget(), {kept.x, kept.y, kept.width, kept.height});
  pane_->SetWidths(kept.columns.empty() ? std::vector<int>{kFirstColumn, kSecondColumn} : kept.columns);
}

void DrawWindow::Keep() const {
  windowPlace_.Write({x(), y(), width(), height(), pane_->Widths()});
  setting_.Write(Typed());
}

QString DrawWindow::Text(int number) const {
  return ToQString(strings_.Text(number));
}

}  // namespace quorvantis
