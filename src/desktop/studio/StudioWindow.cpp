// SPDX-License-Identifier: MIT
#include "desktop/studio/StudioWindow.h"

#include "desktop/controls/CompanionWindow.h"
#include "desktop/controls/QtText.h"
#include "desktop/studio/MarksQuestion.h"
#include "desktop/studio/SaveRulesDlg.h"
#include "import/DocumentFailureText.h"
#include "learn/LearnedTexts.h"
#include "learn/StudyTexts.h"
#include "platform/texts/StudioTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QScreen>

#include <utility>

namespace quorvantis {
namespace {

constexpr QSize kFirstStudioSize(1220, 760);  // pixels
constexpr QSize kFrame(16, 48);               // pixels; what a frame may take
constexpr int kRoomy = 560;                   // pixels; lower windows show less around the paper
constexpr int kPauseInTyping = 250;           // milliseconds
constexpr int kAfterEvents = 20;              // milliseconds
constexpr std::size_t kSideCount = 2;

/// When the file was changed last; that of a text that is no file never changes.
std::filesystem::file_time_type TimeOf(const std::filesystem::path& file) {
  std::error_code error;
  const auto time = std::filesystem::last_write_time(file, error);
  return error ? std::filesystem::file_time_type() : time;
}

}  // namespace

StudioWindow::StudioWindow(const ExamServices& services, StudioServices program, QWidget* parent)
    : QWidget(parent, Qt::Window),
      services_(services),
      strings_(services.strings),
      program_(std::move(program)),
      place_(services.applicationFolder, services.files, u"studio"),
      controls_(strings_, this),
      sides_(*controls_.paper, *controls_.questions, nullptr),
      run_(nullptr),
      reasonsRun_(nullptr) {
  setObjectName("studio");
  setWindowTitle(ToQString(strings_.Text(text_id::kStudio)));
  whenTyped_.setSingleShot(true);
  whenTyped_.setInterval(kPauseInTyping);
  whenChanged_.setSingleShot(true);
  whenChanged_.setInterval(kAfterEvents);
  controls_.paper->setPlaceholderText(ToQString(strings_.Text(text_id::kStudioHint)));
  RestorePlace();
  Connect();
  EnableControls();
}

StudioWindow::~StudioWindow() {
  if (isVisible()) KeepPlace();
  run_.disconnect(this);
  reasonsRun_.disconnect(this);
}

void StudioWindow::Connect() {
  connect(controls_.open, &QPushButton::clicked, this, &StudioWindow::ChoosePaper);
  connect(controls_.paste, &QPushButton::clicked, this, &StudioWindow::PastePaper);
  connect(controls_.undo, &QPushButton::clicked, this, &StudioWindow::UndoMark);
  connect(controls_.redo, &QPushButton::clicked, this, &StudioWindow::RedoMark);
  connect(controls_.rulesButton, &QPushButton::toggled, this,
          [this](bool areShown) { controls_.ShowRules(areShown); });
  connect(controls_.saveRules, &QPushButton::clicked, this, &StudioWindow::SaveRules);
  connect(controls_.import, &QPushButton::clicked, this, &StudioWindow::ImportQuestions);
  connect(controls_.close, &QPushButton::clicked, this, &QWidget::close);
  connect(controls_.roles, &RoleBar::RolePressed, this, &StudioWindow::Mark);
  connect(controls_.roles, &RoleBar::TakeBackPressed, this, &StudioWindow::TakeBackHere);
  connect(controls_.paper, &PaperView::RoleKeyPressed, this, &StudioWindow::Mark);
  connect(controls_.paper, &PaperView::TakeBackPressed, this, &StudioWindow::TakeBackHere);
  controls_.paper->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(controls_.paper, &QWidget::customContextMenuRequested, this, &StudioWindow::ShowMenu);
  connect(controls_.marks, &MarksList::TakeBack, this, &StudioWindow::TakeBack);
  connect(controls_.marks, &MarksList::Chosen, this, [this](std::size_t index) {
    if (study_ && index < study_->Marks().size())
      controls_.paper->ScrollTo(study_->Marks()[index].span.begin);
  });
  connect(controls_.findings, &FindingsList::PlaceChosen, this, [this](TextSpan place) {
    controls_.paper->Select(place);
    controls_.paper->setFocus();
  });
  connect(controls_.rules, &RulesPanel::Edited, this, &StudioWindow::RulesEdited);
  connect(controls_.target, &TargetChoice::Changed, this, &StudioWindow::ShowTarget);
  connect(&whenTyped_, &QTimer::timeout, this, &StudioWindow::TryEdited);
  connect(&whenChanged_, &QTimer::timeout, this, &StudioWindow::ShowTarget);
  connect(&run_, &BackgroundRun::Changed, this, &StudioWindow::EnableControls);
  AddKey(QKeySequence::Undo, &StudioWindow::UndoMark);
  AddKey(QKeySequence::Redo, &StudioWindow::RedoMark);
  AddKey(Qt::CTRL | Qt::Key_Y, &StudioWindow::RedoMark);
  AddKey(QKeySequence::Open, &StudioWindow::ChoosePaper);
  AddKey(QKeySequence::Paste, &StudioWindow::PastePaper);
}

/// Fields of the window use these keys first.
void StudioWindow::AddKey(const QKeySequence& keys, void (StudioWindow::*command)()) {
  for (const QAction* action : actions()) {
    if (action->shortcut() == keys) return;
  }
  auto* action = new QAction(this);
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, command);
  addAction(action);
}

void StudioWindow::Open() {
  show();
  raise();
  activateWindow();
  controls_.paper->setFocus();
}

void StudioWindow::OpenPaper(const std::filesystem::path& paper) {
  Open();
  if (!MayLeavePaper()) return;
  controls_.target->Reset();
  ReadPaper({paper});
}

void StudioWindow::ExamChanged() {
  if (isVisible()) whenChanged_.start();
}

void StudioWindow::Tell(int text) {
  controls_.Tell(ToQString(strings_.Text(text)));
}

void StudioWindow::ChoosePaper() {
  const auto paper = program_.choosePaper();
  TakeKeyboard();
  if (paper) OpenPaper(*paper);
}

/// After dialogs: the main window must not get the next key.
void StudioWindow::TakeKeyboard() {
  raise();
  activateWindow();
}

void StudioWindow::PastePaper() {
  const QString text = QGuiApplication::clipboard()->text();
  if (text.trimmed().isEmpty()) return Tell(text_id::kPasteNothing);
  if (!MayLeavePaper()) return;
  run_.Drop();  // it may be reading the text that is held now
  ReadPaper({program_.holdText(FromQString(text))});
}

bool StudioWindow::MayLeavePaper() {
  if (!study_ || study_->Marks().empty()) return true;
  const bool mayLeave = MayLoseMarks(strings_, this);
  TakeKeyboard();
  return mayLeave;
}

void StudioWindow::ReadPaper(WantedPaper wanted) {
  Tell(text_id::kStudioReading);
  wanted.time = TimeOf(wanted.file);
  run_.Start([this, wanted = std::move(wanted),
              read = program_.readPaper](const BackgroundRun::Cancelled& isCancelled) {
    auto file = std::make_shared<PaperFile>(read(wanted.file, isCancelled));
    return [this, wanted, file] { TakePaper(std::move(*file), wanted); };
  });
}

void StudioWindow::TakePaper(PaperFile file, const WantedPaper& wanted) {
  if (file.result != WordResult::Done) {
    tellThen_ = 0;
    if (file.result == WordResult::Cancelled) return Tell(text_id::kStudioCancelled);
    return controls_.Tell(ToQString(DocumentFailureText(file.result, wanted.file, strings_)));
  }
  Leave();
  paper_ = wanted.file;
  paperTime_ = wanted.time;
  study_ = std::make_unique<PaperStudy>(std::move(file.paper));
  if (wanted.rules) study_->NoteRules(*wanted.rules);
  controls_.paper->ShowPaper(study_->SharedPaper(), file.formulas > 0);
  const std::u16string name = PathToText(paper_.filename());
  const QString title = ToQString(FillMessage(strings_.Text(text_id::kStudioOfPaper), {name}));
  setWindowTitle(QString(title).replace("[*]", "[*][*]"));
  WorkOut();
}

/// Everything lets go of the study first.
void StudioWindow::Leave() {
  whenTyped_.stop();
  run_.Drop();
  reasonsRun_.Drop();
  controls_.model->ShowStudy(nullptr);
  sides_.Clear();
  controls_.paper->ShowPaper(std::make_shared<const Paper>(), false);
  controls_.rules->Clear();
  controls_.marks->hide();
  controls_.headline->clear();
  controls_.findings->clear();
  study_.reset();
  setWindowTitle(ToQString(strings_.Text(text_id::kStudio)));
  EnableControls();
}

void StudioWindow::Mark(PaperRole role) {
  if (!study_) return Tell(text_id::kStudioHint);
  const TextSpan span = controls_.paper->Selected();
  if (span.IsEmpty()) return Tell(text_id::kSelectFirst);
  const Paper& paper = study_->StudiedPaper();
  if (IsUnderstoodAs(paper.source.characters, RoleLookup(study_->Roles()), span, role)) {
    controls_.Tell(ToQString(FillMessage(strings_.Text(text_id::kAlreadyUnderstood),
                                         {ShortText(paper, span), RoleName(role, strings_)})));
    return;
  }
  const bool replacesOwn = study_->HasOwnRules();
  study_->AddMark({span, role});
  if (replacesOwn) tellThen_ = text_id::kOwnRulesReplaced;
  WorkOut();
}

void StudioWindow::TakeBackHere() {
  std::optional<std::size_t> index;
  if (study_) index = MarkIn(study_->Marks(), controls_.paper->Selected());
  if (study_ && !index) index = MarkAt(study_->Marks(), controls_.paper->CursorPlace());
  if (!index) return Tell(text_id::kNoMarkHere);
  TakeBack(*index);
}

void StudioWindow::TakeBack(std::size_t index) {
  if (!study_ || index >= study_->Marks().size()) return;
  study_->RemoveMark(index);
  WorkOut();
  controls_.paper->setFocus();
}

/// What has been typed and not been tried goes first.
void StudioWindow::UndoMark() {
  if (!study_ || (!whenTyped_.isActive() && !study_->CanUndo())) return;
  if (!whenTyped_.isActive()) study_->Undo();
  WorkOut();
}

void StudioWindow::RedoMark() {
  if (!study_ || !study_->CanRedo()) return;
  study_->Redo();
  WorkOut();
}

void StudioWindow::RulesEdited(int rule) {
  if (!study_) return;
  const bool isAnother = whenTyped_.isActive() && rule != typedRule_;
  typedRule_ = isAnother ? RulesPanel::kNoRule : rule;
  whenTyped_.start();
  controls_.Tell(controls_.rules->Fault());
  EnableControls();
}

void StudioWindow::TryEdited() {
  if (!study_) return;
  const int rule = typedRule_;
  study_->NoteRules(controls_.rules->Rules(), rule != RulesPanel::kNoRule && rule == triedRule_);
  WorkOut();
  triedRule_ = rule;
}

void StudioWindow::WorkOut() {
  whenTyped_.stop();
  reasonsRun_.Drop();
  triedRule_ = RulesPanel::kNoRule;
  Tell(text_id::kStudioLearning);
  run_.Start([this, paper = study_->SharedPaper(),
              state = study_->State()](const BackgroundRun::Cancelled& isCancelled) {
    auto outcome =
        std::make_shared<StudyOutcome>(state.ownRules ? TryRules(*paper, *state.ownRules, isCancelled)
                                                      : WorkOutRules(*paper, state.marks, isCancelled));
    return [this, outcome] { TakeOutcome(std::move(*outcome)); };
  });
}

void StudioWindow::TakeOutcome(StudyOutcome outcome) {
  if (outcome.WasCancelled()) {
    study_->ReturnToTaken();
    tellThen_ = text_id::kStudioCancelled;
  } else {
    controls_.model->ShowStudy(nullptr);
    study_->Take(std::move(outcome));
  }
  reasons_.reset();
  ShowStudy();
  if (tellThen_ == 0 && !controls_.paper->ShowsAll()) tellThen_ = text_id::kPaperBeginning;
  const int text = std::exchange(tellThen_, 0);
  controls_.Tell(text == 0 ? controls_.rules->Fault() : ToQString(strings_.Text(text)));
  ExplainMarks();
}

void StudioWindow::ExplainMarks() {
  const auto& unfollowed = study_->Learned().unfollowed;
  if (unfollowed.empty()) return;
  reasonsRun_.Start([this, paper = study_->SharedPaper(), marks = study_->Marks(),
                     unfollowed](const BackgroundRun::Cancelled& isCancelled) {
    auto reasons = WhyUnfollowed(*paper, marks, unfollowed, isCancelled);
    return [this, reasons = std::move(reasons)] { TakeReasons(reasons); };
  });
}

/// Tells that of the mark that was made last.
void StudioWindow::TakeReasons(std::vector<UnfollowedMark> reasons) {
  reasons_ = std::move(reasons);
  controls_.marks->ShowStudy(*study_, reasons_);
  if (reasons_->empty()) return;
  const UnfollowedMark& last = reasons_->back();
  const Paper& paper = study_->StudiedPaper();
  const PaperMark& mark = study_->Marks()[last.mark];
  controls_.Tell(ToQString(FillMessage(strings_.Text(text_id::kMarkReason),
                                       {ShortText(paper, mark.span), RoleName(mark.role, strings_),
                                        ReasonText(last, paper, study_->Marks(), strings_)})));
}

void StudioWindow::ShowStudy() {
  controls_.headline->setText(ToQString(StudyHeadline(*study_, strings_)));
  controls_.findings->ShowStudy(*study_);
  controls_.model->ShowStudy(study_.get());
  controls_.paper->ShowStudy(*study_);
  controls_.marks->ShowStudy(*study_, reasons_);
  controls_.rules->ShowStudy(*study_);
  sides_.ShowStudy(*study_);
  ShowTarget();
}

int StudioWindow::Questions() const {
  return study_ ? static_cast<int>(study_->Reading().paper.questions.size()) : 0;
}

void StudioWindow::ShowTarget() {
  if (isImporting_) return;
  controls_.target->Propose(program_.currentQuestion());
  const ForeseenImport place = ForeseeImport(program_.exam(), Questions(), controls_.target->Wish());
  controls_.targetPlace->setText(ToQString(ForeseenImportText(place, strings_)));
  controls_.model->SetNumbers(place.first, place.written);
  hasRoom_ = place.written > 0;
  EnableControls();
}

void StudioWindow::ShowMenu(const QPoint& position) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addActions(controls_.roles->Actions());
  menu->popup(controls_.paper->viewport()->mapToGlobal(position));
}

/// What is imported and saved is what is shown, so not while something else is being worked out.
void StudioWindow::EnableControls() {
  const bool isSettled =
      study_ && !run_.IsRunning() && !whenTyped_.isActive() && controls_.rules->Fault().isEmpty();
  controls_.import->setEnabled(isSettled && hasRoom_);
  controls_.saveRules->setEnabled(isSettled);
  controls_.rulesButton->setEnabled(study_ != nullptr);
  controls_.undo->setEnabled(study_ && (study_->CanUndo() || whenTyped_.isActive()));
  controls_.redo->setEnabled(study_ && study_->CanRedo());
}

/// Automatic numbers are part of the text that was studied.
ImportSettings StudioWindow::RulesToUse() const {
  ImportSettings rules = study_->Rules();
  rules.listLabels = true;
  return rules;
}

void StudioWindow::ImportQuestions() {
  if (TimeOf(paper_) != paperTime_) {
    tellThen_ = text_id::kPaperChanged;
    return ReadPaper({paper_, study_->Rules()});
  }
  bool isDone = false;
  {
    const QScopedValueRollback importing(isImporting_, true);
    isDone = program_.import({paper_, RulesToUse(), controls_.target->Wish()});
  }
  if (!isDone) {
    TakeKeyboard();
    return ShowTarget();
  }
  Leave();
  controls_.Tell({});
  hide();
  QWidget* main = parentWidget()->window();
  if (main->isMinimized()) main->setWindowState(main->windowState() & ~Qt::WindowMinimized);
}

void StudioWindow::SaveRules() {
  std::filesystem::path file;
  const auto save = [this, &file](const std::u16string& name) {
    return program_.saveRules({name, RulesToUse()}, file);
  };
  SaveRulesDlg dialog(PathToQString(paper_.stem()), save, strings_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  controls_.Tell(ToQString(
      FillMessage(strings_.Text(text_id::kRulesSaved), {FromQString(dialog.Name()), PathToText(file)})));
}

void StudioWindow::closeEvent(QCloseEvent* event) {
  if (!MayLeavePaper()) return event->ignore();
  Leave();
  controls_.Tell({});
  event->accept();
}

/// Escape cancels what is running, and else closes.
void StudioWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
  if (run_.IsRunning()) return run_.Cancel();
  close();
}

void StudioWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ShowTarget();
}

void StudioWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  controls_.SetCompact(height() < kRoomy);
}

void StudioWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) KeepPlace();
  QWidget::hideEvent(event);
}

void StudioWindow::RestorePlace() {
  resize(kFirstStudioSize.boundedTo(parentWidget()->screen()->availableSize() - kFrame));
  controls_.sides->setSizes({width() / 2, width() / 2});
  const WindowPlace kept = place_.Read();
  if (!ReturnToPlace(*this, {kept.x, kept.y, kept.width, kept.height})) return;
  if (kept.columns.size() != kSideCount + QuestionListModel::kColumns) return;
  controls_.sides->setSizes({kept.columns[0], kept.columns[1]});
  for (int column = 0; column < QuestionListModel::kColumns; ++column)
    controls_.questions->setColumnWidth(column, kept.columns[kSideCount + static_cast<std::size_t>(column)]);
}

void StudioWindow::KeepPlace() const {
  WindowPlace place{x(), y(), width(), height(), {}};
  for (const int size : controls_.sides->sizes()) place.columns.push_back(size);
  for (int column = 0; column < QuestionListModel::kColumns; ++column)
    place.columns.push_back(controls_.questions->columnWidth(column));
  place_.Write(place);
}

}  // namespace quorvantis
