// SPDX-License-Identifier: MIT
#include "shell/ImportCommand.h"

#include "editor/WorkCopies.h"
#include "import/AnswerPictures.h"
#include "platform/DebugOutput.h"
#include "platform/ExamServices.h"
#include "platform/Progress.h"
#include "platform/StringTable.h"
#include "platform/Texts.h"
#include "platform/UserDialogs.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {

void ImportCommand::Debug(std::u16string_view line) {
  Exam().Services().debug.Line(line);
}

void ImportCommand::Run() {
  importBase_ = editor_.state.currentQuestion;
  if (ConfirmImportTarget()) ImportHere();
}

void ImportCommand::RunAfter(int question) {
  importBase_ = editor_.state.currentQuestion = std::max(question, 1);
  editor_.questions.LoadCurrentQuestion();
  if (question > 0) editor_.questions.GoNext();
  ImportHere();
}

/// False when the exam in hand was to be saved first and was not: it must not be lost.
bool ImportCommand::ConfirmImportTarget() {
  EditorState& state = editor_.state;
  if (state.currentQuestion == 1) return true;
  if (dialogs_.AskTarget() == ImportTarget::Continue) {
    editor_.questions.GoNext();
    return true;
  }
  if (state.Modified()) editor_.files.SaveExam();
  if (state.Modified()) return false;
  editor_.files.StartNewExam();
  pictureCounter_ = 0;
  importBase_ = 1;
  return true;
}

void ImportCommand::ImportHere() {
  ExamImport choice(rules_, Exam().Services().codePage);
  choice.Open();
  if (!dialogs_.AskDocument(choice)) return;
  importRolledBack_ = false;
  dialogs_.ShowWait();
  Debug(u"The ExamImportDlg is showing!");
  const PaperOutcome outcome = reader_.Read(choice.m_strDocPath, pictureCounter_);
  ImportReport report;
  if (outcome.content && ReadQuestions(choice, *outcome.content, report)) {
    StoreAndFinish(*outcome.content, report);
    return;
  }
  dialogs_.HideWait();
  dialogs_.ShowFailure(outcome.content ? FailureText(*report.paper.failure) : outcome.error);
}

/// Marks and parses without touching the exam; false with the failure in the report.
bool ImportCommand::ReadQuestions(const ExamImport& choice, const PaperContent& content,
                                  ImportReport& report) {
  const CancelHook isCancelled = [this] { return Exam().Services().progress.IsCancelled(); };
  report.rules = choice;
  report.text = content.text;
  try {
    if (choice.m_nTable != 0) {
      Debug(FillMessage(u"The dlg.m_strPreAnswer is %s", {choice.m_strPreAnswer}));
      Debug(FillMessage(u"The dlg.m_strTableAnsKey is %s", {choice.m_strTableAnsKey}));
      Debug(FillMessage(u"The dlg.m_strTableQuesKey is %s", {choice.m_strTableQuesKey}));
      report.marked = TableToString(content.tables, choice, isCancelled);
      Debug(u"Table To String");
    } else {
      report.marked = TextToString(content.text, choice, isCancelled);
      Debug(u"Text To String");
    }
  } catch (const ImportFailure& failure) {
    report.paper.failure = failure;
    return false;
  }
  Debug(FillMessage(u"ExamDoc output %s", {report.marked.text}));
  const QuestionTextParser parser(choice, Exam().Services().debug, isCancelled);
  report.paper = parser.Parse(report.marked.text, pictureCounter_);
  return !report.paper.failure;
}

void ImportCommand::StoreAndFinish(const PaperContent& content, ImportReport& report) {
  report.firstSlot = editor_.state.currentQuestion;
  nextSlot_ = report.nextSlot = StoreQuestions(report.paper, Exam(), report.firstSlot);
  const bool forced = HandleAnswerPictures();
  pictureCounter_ = content.nextPicture;
  dialogs_.HideWait();
  Debug(u"The ExamImportDlg is gone!");
  if (importRolledBack_) {
    editor_.questions.GoPrevious();
    return;
  }
  if (forced) ShowPictureList();
  if (content.hasFormulas) HandleFormulas();
  editor_.state.MarkModifiedQuietly();
  GoToLastImported();
  report.imported = !importRolledBack_;
  report.nextSlot = nextSlot_;
  if (report.imported) dialogs_.ShowReport(report);
}

/// What the form holds goes to the slot after the imported ones, if there is one.
void ImportCommand::GoToLastImported() {
  EditorState& state = editor_.state;
  state.currentQuestion = std::min(nextSlot_, kMaxQuestions);
  if (nextSlot_ <= kMaxQuestions) {
    editor_.questions.GoPrevious();
  } else {
    editor_.questions.LoadCurrentQuestion();
  }
}

void ImportCommand::RemoveImported(int question) {
  editor_.attachments.RemoveQuestionAttachments(question);
  Exam().DeleteQuestion(question);
  --nextSlot_;
}

/// True when the user wants pictures in answers to be imported as their names. The question that comes first
/// in a new exam is never looked at, which is deliberate: the base counts as a question of before.
bool ImportCommand::HandleAnswerPictures() {
  const ExamServices& services = Exam().Services();
  const std::u16string notice = services.strings.Text(text_id::kPictureNotice);
  bool asked = false;
  ChoiceResult choice = ChoiceResult::None;
  for (int i = importBase_ + 1; i <= std::min(nextSlot_, kMaxQuestions);) {
    ExamQuestion& question = Exam().Question(i);
    const bool inAnswers = AnswersHavePictures(question);
    if (inAnswers && !asked) {
      choice = dialogs_.AskPictures();
      asked = true;
    }
    Debug(u"The PictureDlg is showing!");
    if (choice == ChoiceResult::GiveUp) {
      RollbackImport();
      return false;
    }
    MarkAnswerPictures(question, notice);
    const auto workRoot = AttachmentWorkRoot(services.applicationFolder);
    if (AttachTextPicture(question, workRoot)) editor_.attachments.TakeCopyNumber();
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
  const ExamServices& services = Exam().Services();
  services.dialogs.ShowWarning(list + services.strings.Text(text_id::kPicturesInAnswers));
}

void ImportCommand::HandleFormulas() {
  const ChoiceResult choice = dialogs_.AskFormulas();
  Debug(u"The FormulaDlg is gone!");
  if (choice == ChoiceResult::GiveUp) RollbackImport();
  if (choice != ChoiceResult::IgnoreRelated) return;
  for (int i = importBase_ + 1; i < nextSlot_;) {
    if (HasFormula(Exam().Question(i))) {
      RemoveImported(i);
    } else {
      ++i;
    }
  }
}

/// What was imported goes, and with it the slot after it. What the slots held before does not come back.
void ImportCommand::RollbackImport() {
  if (importBase_ == 1) {
    editor_.files.EmptyExam();
    nextSlot_ = 1;
  } else {
    editor_.state.currentQuestion = std::min(importBase_ + 1, kMaxQuestions);
    for (int i = importBase_; i < nextSlot_; ++i) editor_.questions.DeleteHere();
    nextSlot_ = editor_.state.currentQuestion;
  }
  editor_.state.MarkSaved();
  importRolledBack_ = true;
}

}  // namespace quorvantis
