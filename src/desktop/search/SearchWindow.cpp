// SPDX-License-Identifier: MIT
#include "desktop/search/SearchWindow.h"

#include "desktop/controls/CompanionWindow.h"
#include "desktop/controls/QtText.h"
#include "desktop/search/ReplaceAllDlg.h"
#include "model/document/ExamServices.h"
#include "platform/texts/SearchTexts.h"
#include "search/SearchTexts.h"
#include "shell/commands/ReplaceCommand.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <chrono>
#include <utility>

namespace quorvantis {
namespace {

constexpr QSize kFirstSearchSize(640, 420);  // pixels
constexpr int kQuiet = 150;                  // milliseconds; a pause in typing
constexpr int kNoticeable = 250;             // milliseconds
constexpr auto kLongestOne = std::chrono::seconds(2);

/// Cancels after a while: for a search in the window's own thread.
SearchCancelled AfterAWhile() {
  const auto end = std::chrono::steady_clock::now() + kLongestOne;
  return [end] { return std::chrono::steady_clock::now() > end; };
}

SearchSetting SettingOf(const ExamServices& services) {
  return {services.applicationFolder, services.files, services.codePage};
}

WindowPlaceSetting PlaceOf(const ExamServices& services) {
  return {services.applicationFolder, services.files, u"search"};
}

}  // namespace

SearchWindow::SearchWindow(ExamEditor& editor, ShowHit showHit, QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      editor_(editor),
      strings_(editor.state.document.Services().strings),
      showHit_(std::move(showHit)),
      setting_(SettingOf(editor.state.document.Services())),
      place_(PlaceOf(editor.state.document.Services())),
      hits_(strings_, nullptr),
      controls_(hits_, strings_, this),
      run_(nullptr),
      planning_(nullptr) {
  setObjectName("searchWindow");
  setWindowTitle(ToQString(strings_.Text(text_id::kFindAndReplace)));
  resize(kFirstSearchSize);
  controls_.Unfold(false);
  Restore();
  whenQuiet_.setSingleShot(true);
  whenQuiet_.setInterval(kQuiet);
  whenItTakes_.setSingleShot(true);
  whenItTakes_.setInterval(kNoticeable);
  Connect();
}

SearchWindow::~SearchWindow() {
  if (isVisible()) Remember();
  run_.disconnect(this);
  planning_.disconnect(this);
}

void SearchWindow::Connect() {
  connect(controls_.find, &QLineEdit::textChanged, this, &SearchWindow::QueryChanged);
  for (QCheckBox* box : {controls_.matchCase, controls_.wholeWords, controls_.pattern})
    connect(box, &QCheckBox::toggled, this, &SearchWindow::QueryChanged);
  connect(controls_.find, &QLineEdit::returnPressed, this, &SearchWindow::FindNext);
  connect(controls_.replacement, &QLineEdit::returnPressed, this, &SearchWindow::ReplaceOne);
  connect(controls_.next, &QPushButton::clicked, this, &SearchWindow::FindNext);
  connect(controls_.previous, &QPushButton::clicked, this, &SearchWindow::FindPrevious);
  connect(controls_.replace, &QPushButton::clicked, this, &SearchWindow::ReplaceOne);
  connect(controls_.replaceAll, &QPushButton::clicked, this, &SearchWindow::ReplaceAll);
  connect(controls_.cancel, &QPushButton::clicked, this, [this] {
    run_.Cancel();
    planning_.Cancel();
  });
  const auto choose = [this](const QModelIndex& index) { RowChosen(index.row()); };
  connect(controls_.table, &HitTable::RowChosen, this, choose);
  connect(controls_.table, &QTreeView::clicked, this, choose);
  connect(controls_.table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& index) {
            if (!settling_ && index.isValid()) GoTo(index.row());
          });
  connect(&whenQuiet_, &QTimer::timeout, this, &SearchWindow::Search);
  connect(&whenItTakes_, &QTimer::timeout, this, [this] { controls_.ShowRunning(true); });
  for (BackgroundRun* run : {&run_, &planning_})
    connect(run, &BackgroundRun::Changed, this, &SearchWindow::ShowRuns);
}

void SearchWindow::OpenFind(const QString& text) {
  controls_.Unfold(false);
  Open(text);
}

void SearchWindow::OpenReplace(const QString& text) {
  controls_.Unfold(true);
  Open(text);
}

void SearchWindow::Open(const QString& text) {
  if (!text.isEmpty()) controls_.find->setText(text);
  controls_.find->setFocus();
  controls_.find->selectAll();
  show();
  raise();
  activateWindow();
  if (stale_) Search();
}

void SearchWindow::Restore() {
  const SearchSwitches switches = setting_.Read();
  controls_.pattern->setChecked(switches.isPattern);
  controls_.matchCase->setChecked(switches.matchCase);
  controls_.wholeWords->setChecked(switches.wholeWords);
  move(PlaceBeside(*parentWidget(), size()));
  const WindowPlace kept = place_.Read();
  ReturnToPlace(*this, {kept.x, kept.y, kept.width, kept.height});
}

void SearchWindow::Remember() const {
  const SearchQuery query = Query();
  setting_.Write({query.isPattern, query.matchCase, query.wholeWords});
  place_.Write({x(), y(), width(), height()});
}

bool SearchWindow::event(QEvent* event) {
  return DecideShortcut(*event) || QDialog::event(event);
}

void SearchWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) Remember();
  QDialog::hideEvent(event);
}

SearchQuery SearchWindow::Query() const {
  return {FromQString(controls_.find->text()), controls_.pattern->isChecked(),
          controls_.matchCase->isChecked(), controls_.wholeWords->isChecked()};
}

void SearchWindow::QueryChanged() {
  run_.Drop();
  planning_.Drop();
  stale_ = true;
  gaveUp_ = false;
  shown_.reset();
  resumeAt_.reset();
  pendingStep_.reset();
  Tell({});
  whenQuiet_.start();
}

/// Walking to a hit loads a form, but changes no text.
void SearchWindow::ExamChanged() {
  if (isShowing_) return;
  stale_ = true;
  if (isVisible() && !gaveUp_) whenQuiet_.start();
}

void SearchWindow::Search() {
  whenQuiet_.stop();
  stale_ = false;
  gaveUp_ = false;
  const SearchQuery query = Query();
  const auto search = std::make_shared<const TextSearch>(query);
  const std::u16string problem = QueryProblem(*search, strings_);
  if (query.text.empty() || !problem.empty()) {
    run_.Drop();
    pendingStep_.reset();
    hits_.Show(nullptr, {});
    controls_.count->clear();
    return Tell(problem);
  }
  const auto exam = std::make_shared<const FrameSetExam>(SearchedExam(editor_));
  run_.Start([this, exam, search](const SearchCancelled& isCancelled) -> BackgroundRun::Finish {
    const auto outcome = std::make_shared<SearchOutcome>(FindAll(*exam, *search, isCancelled));
    return [this, exam, outcome] { TakeHits(exam, std::move(*outcome)); };
  });
}

void SearchWindow::TakeHits(std::shared_ptr<const FrameSetExam> exam, SearchOutcome outcome) {
  gaveUp_ = outcome.end == SearchEnd::Cancelled;
  if (!resumeAt_ && Row() >= 0) resumeAt_ = hits_.Hit(Row());
  settling_ = true;
  hits_.Show(std::move(exam), std::move(outcome.hits));
  settling_ = false;
  SetRow(FirstRow());
  resumeAt_.reset();
  controls_.count->setText(
      ToQString(FillMessage(strings_.Text(text_id::kHits), {FormatInteger(hits_.Count())})));
  const std::u16string problem = SearchProblem(outcome.end, outcome.stoppedAt, strings_);
  if (!problem.empty()) Tell(problem);
  if (pendingStep_) TakeStep(*std::exchange(pendingStep_, std::nullopt));
}

void SearchWindow::ShowRuns() {
  if (run_.IsRunning() || planning_.IsRunning()) {
    if (!whenItTakes_.isActive()) whenItTakes_.start();
  } else {
    whenItTakes_.stop();
    controls_.ShowRunning(false);
  }
}

void SearchWindow::Tell(const std::u16string& message) {
  controls_.Tell(ToQString(message));
}

int SearchWindow::Row() const {
  return controls_.table->currentIndex().row();
}

/// The row to begin with: where the search goes on, or at the question that is shown. After the last one
/// comes the first; -1 in an empty list.
int SearchWindow::FirstRow() const {
  const int question = editor_.state.CurrentQuestion();
  const SearchHit from = resumeAt_.value_or(SearchHit{{question == 1 ? 0 : question}, 0, 0});
  const int row = hits_.RowFrom(from.place, from.start);
  return row < hits_.Count() ? row : hits_.Count() == 0 ? -1 : 0;
}

/// Whether the hit of a row is the one that was shown last, and its question still is.
bool SearchWindow::IsShown(int row) const {
  if (row < 0 || shown_ != hits_.Hit(row)) return false;
  return shown_->place.question == 0 || shown_->place.question == editor_.state.CurrentQuestion();
}

void SearchWindow::SetRow(int row) {
  settling_ = true;
  controls_.table->setCurrentIndex(hits_.index(row, HitList::kQuestion));
  settling_ = false;
}

void SearchWindow::GoTo(int row) {
  SetRow(row);
  shown_ = hits_.Hit(row);
  isShowing_ = true;
  showHit_(*shown_);
  isShowing_ = false;
}

void SearchWindow::Step(int direction) {
  if (controls_.find->text().isEmpty()) return OpenFind({});
  if (!stale_ && !run_.IsRunning()) return TakeStep(direction);
  pendingStep_ = direction;
  if (stale_) Search();
}

/// From a hit that is shown to the next one; from anywhere else to the nearest.
void SearchWindow::TakeStep(int direction) {
  if (hits_.Count() == 0) {
    if (!isVisible()) Open({});
    return;
  }
  int row = Row();
  if (IsShown(row)) {
    row += direction;
  } else {
    const bool hasWalked =
        shown_ && shown_->place.question != 0 && shown_->place.question != editor_.state.CurrentQuestion();
    if (hasWalked || row < 0) row = FirstRow();
    if (direction < 0) --row;
  }
  GoTo((row + hits_.Count()) % hits_.Count());
}

void SearchWindow::RowChosen(int row) {
  GoTo(row);
  parentWidget()->window()->activateWindow();
}

bool SearchWindow::CanReplace(const TextSearch& search, const ReplacementText& replacement) {
  std::u16string problem = controls_.find->text().isEmpty() ? strings_.Text(text_id::kNothingSought)
                                                            : QueryProblem(search, strings_);
  if (problem.empty()) problem = ReplacementProblem(replacement, search, strings_);
  Tell(problem);
  return problem.empty();
}

/// A hit is replaced once the user has seen it.
void SearchWindow::ReplaceOne() {
  const SearchQuery query = Query();
  const TextSearch search(query);
  const ReplacementText replacement(FromQString(controls_.replacement->text()), query.isPattern);
  if (!CanReplace(search, replacement)) return;
  if (!IsShown(Row())) {
    resumeAt_ = Row() >= 0 ? std::optional(hits_.Hit(Row())) : std::nullopt;
    shown_.reset();
    return Step(1);
  }
  const FrameSetExam exam = SearchedExam(editor_);
  const SearchHit hit = *shown_;
  const auto planned = PlanReplacement(exam, hit, search, replacement, AfterAWhile());
  if (planned && planned->obstacle) return Tell(ObstacleText(*planned->obstacle, hit.place, strings_));
  if (planned) {
    const bool changes = ReplaceHits(editor_, exam, {*planned}).replaced > 0;
    if (!changes) Tell(strings_.Text(text_id::kReplacementIsSame));
    resumeAt_ = SearchHit{hit.place, hit.start + static_cast<std::uint32_t>(planned->text.size()), 0};
    shown_.reset();
    pendingStep_ = 1;
  } else {
    Tell(strings_.Text(text_id::kHitIsGone));
  }
  Search();
}

void SearchWindow::ReplaceAll() {
  const SearchQuery query = Query();
  const auto search = std::make_shared<const TextSearch>(query);
  const ReplacementText replacement(FromQString(controls_.replacement->text()), query.isPattern);
  if (!CanReplace(*search, replacement)) return;
  const auto exam = std::make_shared<const FrameSetExam>(SearchedExam(editor_));
  planning_.Start(
      [this, exam, search, replacement](const SearchCancelled& isCancelled) -> BackgroundRun::Finish {
        const auto plan =
            std::make_shared<ReplacementPlan>(PlanReplacements(*exam, *search, replacement, isCancelled));
        return [this, exam, plan] { OfferReplacements(exam, *plan); };
      });
}

void SearchWindow::OfferReplacements(const std::shared_ptr<const FrameSetExam>& exam,
                                     const ReplacementPlan& plan) {
  if (plan.end != SearchEnd::Done) return Tell(SearchProblem(plan.end, plan.stoppedAt, strings_));
  if (plan.replacements.empty()) return Tell(NothingToReplaceText(plan, strings_));
  ReplaceAllDlg list(exam, plan.replacements, strings_, this);
  const bool isAccepted = list.exec() == QDialog::Accepted;
  activateWindow();  // else the main window would come next
  if (!isAccepted) return;
  std::u16string told;
  for (const std::u16string& line : ReplaceSummary(ReplaceHits(editor_, *exam, list.Chosen()), strings_))
    told += (told.empty() ? u"" : u"\n") + line;
  shown_.reset();
  Search();
  Tell(told);
}

}  // namespace quorvantis
