// SPDX-License-Identifier: MIT
#include "desktop/main/BankCommands.h"

#include "editor/WorkCopies.h"
#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/TextNumbers.h"
#include "platform/UserDialogs.h"
#include "render/sheets/SheetPages.h"
#include "shell/commands/ReplaceCommand.h"
#include "taking/OtherExam.h"
#include "taking/PrivateServices.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

/// The exam may have been saved since it was searched.
bool IsStillThere(const OtherExam& other, const BankQuestion& question) {
  if (question.number > other.QuestionCount()) return false;
  const ExamQuestion& now = other.Exam().Question(question.number);
  return now.text == question.text && now.options == question.options;
}

/// An exam of this question alone, for its page. Its files are those of `other`, which it must not outlive.
class SingleQuestion {
 public:
  SingleQuestion(const OtherExam& other, const ExamServices& services, const ExamQuestion& question)
      : services_(PrivateServices(services, other.Exam().Services().applicationFolder, messages_, flags_)),
        exam_(services_) {
    exam_.title = other.Exam().title;
    exam_.Question(1) = question;
    exam_.CountQuestions();
  }

  const FrameSetExam& Exam() const { return exam_; }

 private:
  CollectedMessages messages_;
  LongAnswerFlags flags_;
  ExamServices services_;
  FrameSetExam exam_;
};

/// The buttons above the page. A single question gets no file name of its own; whoever prints it may choose a
/// PDF file.
void ObeyPage(PreviewWindow& window, const QString& wish) {
  if (wish == "SheetClose") window.Leave();
  if (wish == "SheetPrint" || wish == "SheetSave") window.PrintByKeystroke();
}

OpenExam OpenExamOf(const ExamEditor& editor) {
  return {std::make_shared<const FrameSetExam>(SearchedExam(editor)),
          editor.state.IsUntitled() ? std::filesystem::path() : editor.state.FileName()};
}

}  // namespace

BankDesk& BankCommands::Desk() {
  const ExamServices& services = editor_.state.document.Services();
  if (!desk_) desk_ = std::make_unique<BankDesk>(UsualBankPlace(), services, digest_, nullptr);
  return *desk_;
}

BankWindow& BankCommands::Window() {
  if (!shown_) {
    BankActions actions{[this](const BankQuestion& question) { return Insert(question); },
                        [this](const BankQuestion& question) { Show(question); },
                        [this](const BankQuestion& question) { OpenExam(question); }, draw_,
                        [this] { ShowAskedBefore(); }};
    shown_ = new BankWindow(Desk(), editor_.state.document.Services(), std::move(actions), &window_);
  }
  return *shown_;
}

void BankCommands::Open() {
  Window().Appear();
}

void BankCommands::ShowAskedBefore() {
  if (!askedBefore_) {
    AskedBeforeActions actions{[this] { return OpenExamOf(editor_); },
                               [this](int number) {
                                 if (number <= editor_.state.document.LastCountedQuestion())
                                   editor_.questions.GoTo(number);
                               },
                               [this](const BankUse& use) { Window().Reveal(use); }};
    askedBefore_ =
        new AskedBeforeWindow(Desk(), editor_.state.document.Services(), std::move(actions), &window_);
  }
  askedBefore_->Appear();
}

void BankCommands::ExamChanged() {
  if (askedBefore_) askedBefore_->ExamChanged();
}

QString BankCommands::Insert(const BankQuestion& question) {
  const ExamServices& services = editor_.state.document.Services();
  const OtherExam other(services, AttachmentWorkRoot(services.applicationFolder), question.exam.path,
                        editor_.attachments.TakeCopyNumber());
  if (IsStillThere(other, question)) return questions_.InsertFrom(other, {question.number});
  services.dialogs.ShowError(FillMessage(services.strings.Text(text_id::kBankChanged),
                                         {PathToText(question.exam.path), FormatInteger(question.number)}));
  return {};
}

void BankCommands::Show(const BankQuestion& question) {
  const ExamServices& services = editor_.state.document.Services();
  const OtherExam other(services, AttachmentWorkRoot(services.applicationFolder), question.exam.path,
                        editor_.attachments.TakeCopyNumber());
  if (!IsStillThere(other, question)) {
    services.dialogs.ShowError(FillMessage(services.strings.Text(text_id::kBankChanged),
                                           {PathToText(question.exam.path), FormatInteger(question.number)}));
    return;
  }
  const SingleQuestion single(other, services, other.Exam().Question(question.number));
  const auto page = WriteSheet(single.Exam(), {Sheet::Paper, {}, false, languageIsRightToLeft_});
  PreviewWindow& window = renewPreview_();
  QObject::connect(&window, &PreviewWindow::PageWished, &window,
                   [&window](const QString& wish) { ObeyPage(window, wish); });
  window.Navigate(page);
  window.Place(0, 0);
  window.Show();
}

void BankCommands::OpenExam(const BankQuestion& question) {
  editor_.files.OpenExam(question.exam.path);
  if (editor_.state.FileName() == question.exam.path) editor_.questions.GoTo(question.number);
}

}  // namespace quorvantis
