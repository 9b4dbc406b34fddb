// SPDX-License-Identifier: MIT
#include "import/ImportCommand.h"

#include "editor/WorkCopies.h"
#include "import/AnswerPictures.h"
#include "import/DocumentFailureText.h"
#include "import/LineEnds.h"
#include "import/RecognisedShare.h"
#include "import/ReplacedQuestions.h"
#include "model/document/ExamServices.h"
#include "platform/DebugOutput.h"
#include "platform/StringTable.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <utility>

namespace quorvantis {

const StringTable& ImportCommand::Strings() {
  return Exam().Services().strings;
}

void ImportCommand::Debug(std::u16string_view line) {
  Exam().Services().debug.Line(line);
}

void ImportCommand::Begin() {
  history_.Look();
  stepBefore_ = history_.LastStep();
  step_ = 0;
  editor_.state.NameChange({ChangeKind::Import});
  atWork_.emplace(history_);
  wasModified_ = editor_.state.Modified();
  savesBefore_ = editor_.state.Saves();
  pictureCounterBefore_ = pictureCounter_;
  isNewExam_ = false;
  isChosen_ = false;
  moveTo_.reset();
}

void ImportCommand::ImportQuestions() {
  Begin();
  importBase_ = editor_.state.CurrentQuestion();
  if (ConfirmImportTarget()) ImportHere();
  atWork_.reset();
}

void ImportCommand::ImportQuestionsAfter(int question) {
  Begin();
  importBase_ = std::max(question, 1);
  editor_.questions.ShowQuestion(importBase_);
  if (question > 0) editor_.questions.GoNext();
  ImportHere();
  atWork_.reset();
}

/// The user may undo the import from now on, even while the report is shown.
void ImportCommand::NoteStep() {
  atWork_.reset();
  editor_.state.NameChange({ChangeKind::Import});
  history_.Look();
  if (history_.LastStep() != stepBefore_) step_ = history_.LastStep();
}

/// The exam is again as it was before the import. It counts as modified if it did then, or if a later state
/// has been saved.
void ImportCommand::Revert() {
  history_.Revert();
  editor_.state.MarkSaved();
  if (wasModified_ || editor_.state.Saves() != savesBefore_) editor_.state.MarkModified();
  pictureCounter_ = pictureCounterBefore_;
}

void ImportCommand::Undo() {
  if (!CanUndo()) return;
  history_.UndoBackTo(step_);
  pictureCounter_ = pictureCounterBefore_;
}

void ImportCommand::MendLineEnds() {
  if (!CanUndo()) return;
  editor_.questions.StoreCurrentQuestion();
  FrameSetExam mended = Exam();
  quorvantis::MendLineEnds(mended, firstSlot_, nextSlot_ - 1);
  editor_.changes.Replace(std::move(mended));
  editor_.questions.LoadCurrentQuestion();
  editor_.state.MarkModified();
  editor_.state.NameChange({ChangeKind::LineEnds});
}

/// False if the current exam was to be saved first and was not: it must not be lost.
bool ImportCommand::ConfirmImportTarget() {
  if (editor_.state.CurrentQuestion() == 1) return true;
  if (dialogs_.AskTarget() == ImportTarget::NewExam) return BeginNewExam();
  editor_.questions.GoNext();
  return true;
}

/// False likewise.
bool ImportCommand::BeginNewExam() {
  EditorState& state = editor_.state;
  if (state.Modified()) editor_.files.SaveExam();
  if (state.Modified()) return false;
  editor_.files.StartNewExam();
  isNewExam_ = true;
  pictureCounter_ = 0;
  importBase_ = 1;
  return true;
}

void ImportCommand::ImportHere() {
  ExamImport choice(rules_, Exam().Services().codePage);
  choice.Open();
  if (dialogs_.AskDocument(choice)) ImportDocument(choice.m_strDocPath, choice);
}

ImportOutcome ImportCommand::ImportDocument(const std::filesystem::path& document,
                                            const ImportSettings& rules) {
  importRolledBack_ = false;
  removed_ = 0;
  dialogs_.ShowWait(document);
  Debug(u"The ExamImportDlg is showing!");
  ImportReport report;
  report.document = document;
  report.rules = rules;
  const WordResult read = ReadDocument(report);
  if (read != WordResult::Done) return EndWithout(report, DocumentFailureText(read, document, Strings()));
  if (report.marked.failure) return EndWithout(report, FailureText(*report.marked.failure, Strings()));
  firstSlot_ = editor_.state.CurrentQuestion();
  FrameSetExam exam = Exam();
  nextSlot_ = exam.ParseQuestions(
      firstSlot_, pictureCounter_, report.marked.text, report.rules,
      [this] { return dialogs_.IsCancelled(); }, report.paper);
  if (report.paper.failure) return EndWithout(report, FailureText(*report.paper.failure, Strings()));
  editor_.changes.Replace(std::move(exam));
  return HandleAndFinish(report);
}

/// Reads and marks without touching the exam. A failure of the marking is in the report.
WordResult ImportCommand::ReadDocument(ImportReport& report) {
  WordReader reader(
      documents_, AttachmentWorkRoot(Exam().Services().applicationFolder),
      {[this] { return dialogs_.IsCancelled(); },
       [this](std::size_t done, std::size_t total) { dialogs_.ShowPicturesRead(done, total); }});
  if (!reader.OpenDocument(report.document, report.rules.listLabels)) return reader.Result();
  reader.ReplaceBoxCharacters();
  const auto nextPicture = reader.SavePictures(pictureCounter_);
  if (!nextPicture) return reader.Result();
  const std::size_t formulas = reader.MaskFormulas();
  const WordContent& document = reader.Document();
  report.content = {
      document.runningText.characters, pictureCounter_,        *nextPicture, formulas, reader.LostPictures(),
      document.hasNumbersLeftOut,      UnitsOfTables(document)};
  report.marked = Mark(reader, report.rules);
  reader.CloseDocument();
  reader.QuitWordProcessor();
  return WordResult::Done;
}

MarkedText ImportCommand::Mark(const WordReader& reader, const ImportSettings& rules) {
  MarkedText marked;
  if (rules.m_nTable != 0) {
    Debug(FillMessage(u"The dlg.m_strPreAnswer is %s", {rules.m_strPreAnswer}));
    Debug(FillMessage(u"The dlg.m_strTableAnsKey is %s", {rules.m_strTableAnsKey}));
    Debug(FillMessage(u"The dlg.m_strTableQuesKey is %s", {rules.m_strTableQuesKey}));
    marked = reader.TableToString(rules);
    if (!marked.failure) Debug(u"Table To String");
  } else {
    marked = reader.TextToString(rules);
    if (!marked.failure) Debug(u"Text To String");
  }
  if (!marked.failure) Debug(FillMessage(u"ExamDoc output %s", {marked.text}));
  return marked;
}

/// Nothing was imported, so the exam is restored, even if a new one had been begun.
ImportOutcome ImportCommand::EndWithout(const ImportReport& report, std::u16string_view message) {
  const bool wasCancelled = dialogs_.IsCancelled();
  dialogs_.HideWait();
  Revert();
  if (!wasCancelled) dialogs_.ShowFailure(report, message);
  return wasCancelled ? ImportOutcome::Cancelled : ImportOutcome::Failed;
}

ImportOutcome ImportCommand::HandleAndFinish(ImportReport& report) {
  const bool forced = HandleAnswerPictures();
  pictureCounter_ = report.content->nextPicture;
  dialogs_.HideWait();
  Debug(u"The ExamImportDlg is gone!");
  if (importRolledBack_) {
    if (isChosen_) return TakeBack();
    editor_.questions.GoPrevious();
    Report(report);
    return ImportOutcome::Cancelled;
  }
  if (forced) ShowPictureList();
  if (report.content->formulas > 0) HandleFormulas();
  if (isChosen_ && importRolledBack_) return TakeBack();
  editor_.state.MarkModifiedQuietly();
  GoToLastImported();
  MoveImported();
  Report(report);
  return importRolledBack_ ? ImportOutcome::Cancelled : ImportOutcome::Imported;
}

void ImportCommand::Report(ImportReport& report) {
  report.imported = !importRolledBack_;
  report.firstSlot = firstSlot_;
  report.nextSlot = nextSlot_;
  report.removed = removed_;
  if (!isNewExam_) {
    const FrameSetExam before = history_.LastLook();
    report.replaced = MissingQuestions(before, Exam());
    report.filesStayed = QuestionsWithEarlierFiles(before, Exam(), firstSlot_, nextSlot_ - 1);
  }
  report.loneLineEnds = CountLoneLineEnds(Exam(), firstSlot_, nextSlot_ - 1);
  report.formulasKept = std::min(CountFormulas(Exam(), firstSlot_, nextSlot_ - 1), report.content->formulas);
  const int pictures = report.content->nextPicture - report.content->firstPicture;
  for (int n = firstSlot_; n < nextSlot_ && pictures > 0; ++n) {
    if (OptionsHavePictures(Exam().Question(n))) report.optionPictures.push_back(n);
  }
  const bool hasFirst = firstSlot_ == 1 && nextSlot_ > 1 && FirstToCheck() > 1;
  if (hasFirst && pictures > 0 && ShowsPictures(Exam().Question(1))) report.questionAsItIs = 1;
  NoteStep();
  dialogs_.ShowReport(report, *this);
}

/// Deliberate: the whole command stores the form in the slot after the imported ones, if there is one.
void ImportCommand::GoToLastImported() {
  if (isChosen_) return editor_.questions.ShowQuestion(std::max(nextSlot_ - 1, importBase_));
  editor_.questions.MoveFormTo(std::min(nextSlot_, kMaxQuestions));
  if (nextSlot_ <= kMaxQuestions) {
    editor_.questions.GoPrevious();
  } else {
    editor_.questions.LoadCurrentQuestion();
  }
}

void ImportCommand::RemoveImported(int question) {
  editor_.changes.RemoveQuestion(question);
  --nextSlot_;
  ++removed_;
}

/// Deliberate: in the whole command the first question of a new exam is never checked, since the base counts
/// as an earlier question.
int ImportCommand::FirstToCheck() const {
  return isChosen_ ? firstSlot_ : importBase_ + 1;
}

/// Deliberate: the whole command looks at the slot after the imported ones, too.
int ImportCommand::LastToCheck() const {
  return isChosen_ ? nextSlot_ - 1 : std::min(nextSlot_, kMaxQuestions);
}

/// True if the user wants pictures in answers imported as their names.
bool ImportCommand::HandleAnswerPictures() {
  const ExamServices& services = Exam().Services();
  const std::u16string notice = Strings().Text(text_id::kPictureNotice);
  bool asked = false;
  ChoiceResult choice = ChoiceResult::None;
  for (int i = FirstToCheck(); i <= LastToCheck();) {
    ExamQuestion question = Exam().Question(i);
    const bool inAnswers = AnswersHavePictures(question);
    if (inAnswers && !asked) {
      choice = dialogs_.AskPictures();
      asked = true;
    }
    Debug(u"The PictureDlg is showing!");
    if (asked && IsGivenUp(choice)) {
      RollbackImport();
      return false;
    }
    MarkAnswerPictures(question, notice);
    const auto workRoot = AttachmentWorkRoot(services.applicationFolder);
    if (AttachTextPicture(question, workRoot)) editor_.attachments.TakeCopyNumber();
    editor_.changes.SetQuestion(i, std::move(question));
    if (choice == ChoiceResult::IgnoreRelated && inAnswers) {
      RemoveImported(i);
    } else {
      ++i;
    }
  }
  return choice == ChoiceResult::Force;
}

/// Questions that were in the exam before are listed, too.
void ImportCommand::ShowPictureList() {
  std::u16string list;
  for (int n = 1; n <= std::min(nextSlot_, kMaxQuestions); ++n) {
    if (AnswersHavePictures(Exam().Question(n))) list += FormatInteger(n) + u",";
  }
  dialogs_.ShowNotice(Strings().Text(text_id::kNotice), list + Strings().Text(text_id::kPicturesInAnswers));
}

void ImportCommand::HandleFormulas() {
  const ChoiceResult choice = dialogs_.AskFormulas();
  Debug(u"The FormulaDlg is gone!");
  if (IsGivenUp(choice)) RollbackImport();
  if (choice != ChoiceResult::IgnoreRelated) return;
  for (int i = FirstToCheck(); i < nextSlot_;) {
    if (HasFormula(Exam().Question(i))) {
      RemoveImported(i);
    } else {
      ++i;
    }
  }
}

/// Removes what was imported, and the slot after it. What the slots held before does not come back, unless
/// the caller takes everything back.
void ImportCommand::RollbackImport() {
  importRolledBack_ = true;
  if (isChosen_) return;
  if (importBase_ == 1) {
    editor_.files.EmptyExam();
    nextSlot_ = 1;
  } else {
    editor_.questions.MoveFormTo(std::min(importBase_ + 1, kMaxQuestions));
    for (int i = importBase_; i < nextSlot_; ++i) editor_.questions.DeleteHere();
    nextSlot_ = editor_.state.CurrentQuestion();
  }
  editor_.state.MarkSaved();
}

}  // namespace quorvantis
