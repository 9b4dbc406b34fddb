// SPDX-License-Identifier: MIT
#include "desktop/main/commands/BankCommands.h"

#include "bank/taking/BankSources.h"
#include "bank/taking/StillAsShown.h"
#include "desktop/main/commands/BankPages.h"
#include "editor/WorkCopies.h"
#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/convert/Later.h"
#include "platform/texts/OverviewTexts.h"
#include "preview/SheetLayout.h"
#include "render/sheets/SheetPages.h"
#include "shell/commands/ReplaceCommand.h"
#include "taking/OtherExam.h"
#include "taking/PrivateServices.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

bool IsStillThere(const OtherExam& other, const BankQuestion& question) {
  return question.number <= other.QuestionCount() &&
         IsStillSo(other.Exam().Question(question.number), question);
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

/// What a file of the question is called: "Biology - 12".
std::u16string FileTitle(const BankQuestion& question) {
  return question.exam.Name() + u" - " + FormatInteger(question.number);
}

OpenExam OpenExamOf(const ExamEditor& editor) {
  return {std::make_shared<const FrameSetExam>(SearchedExam(editor)),
          editor.state.IsUntitled() ? std::filesystem::path() : editor.state.FileName()};
}

}  // namespace

BankDesk& BankCommands::Desk() {
  if (!desk_) desk_ = std::make_unique<BankDesk>(UsualBankPlace(), Services(), digest_, nullptr);
  return *desk_;
}

BankWindow& BankCommands::Window() {
  if (!shown_) shown_ = new BankWindow(Desk(), Services(), Actions(), &window_);
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
    askedBefore_ = new AskedBeforeWindow(Desk(), Services(), std::move(actions), &window_);
  }
  askedBefore_->Appear();
}

void BankCommands::ExamChanged() {
  if (askedBefore_) askedBefore_->ExamChanged();
}

BankActions BankCommands::Actions() {
  BankActions actions;
  actions.insert = [this](const std::vector<BankQuestion>& questions, std::optional<int> after) {
    return Insert(questions, after);
  };
  actions.show = [this](const BankQuestion& question) { Show(question); };
  actions.openExam = [this](const BankQuestion& question) { OpenExam(question); };
  actions.makePage = [this](QWidget* parent) {
    const auto takeNumber = [this] { return editor_.attachments.TakeCopyNumber(); };
    return new BankPages(Services(), takeNumber, languageIsRightToLeft_, parent);
  };
  actions.draw = draw_;
  actions.showAskedBefore = [this] { ShowAskedBefore(); };
  return actions;
}

/// All of them as one step, or none if one is no longer as it was found.
QString BankCommands::Insert(const std::vector<BankQuestion>& questions, std::optional<int> after) {
  BankSources sources(Services(), digest_, AttachmentWorkRoot(Services().applicationFolder),
                      [this] { return editor_.attachments.TakeCopyNumber(); });
  std::vector<WholeQuestion> whole;
  whole.reserve(questions.size());
  for (const BankQuestion& question : questions) {
    TakenFromBank taken = sources.Take(question);
    if (!taken.whole) {
      taken.problem.empty() ? TellChanged(question) : Services().dialogs.ShowError(taken.problem);
      return {};
    }
    whole.push_back(std::move(*taken.whole));
  }
  return questions_.InsertTaken(std::move(whole), after);
}

void BankCommands::TellChanged(const BankQuestion& question) const {
  Services().dialogs.ShowError(NoLongerSoText(question, Services().strings));
}

void BankCommands::WithPage(const BankQuestion& question, const UsePage& use) {
  const OtherExam other(Services(), AttachmentWorkRoot(Services().applicationFolder), question.exam.path,
                        editor_.attachments.TakeCopyNumber());
  if (!IsStillThere(other, question)) return TellChanged(question);
  const SingleQuestion single(other, Services(), other.Exam().Question(question.number));
  use(WriteSheet(single.Exam(), {Sheet::Paper, {}, false, languageIsRightToLeft_}));
}

void BankCommands::Show(const BankQuestion& question) {
  WithPage(question, [this, question](const std::filesystem::path& page) {
    PreviewWindow& window = previews_.renew({});
    QObject::connect(&window, &PreviewWindow::PageWished, &window_,
                     [this, &window, question](const QString& wish) { Obey(window, question, wish); });
    window.Navigate(page);
    window.Place(0, 0);
    window.Show();
  });
}

/// The buttons above the page. The file dialog would lie below the window with the page.
void BankCommands::Obey(PreviewWindow& window, const BankQuestion& question, const QString& wish) {
  if (wish == "SheetPrint") window.PrintByKeystroke();
  if (wish == "SheetClose" || wish == "SheetSave") window.Leave();
  if (wish == "SheetSave") Later(window_, {}, [this, question] { SavePdf(question); });
}

void BankCommands::SavePdf(const BankQuestion& question) {
  const std::filesystem::path target = pdf_.ChooseTarget(FileTitle(question));
  if (target.empty()) return;
  WithPage(question, [this, &target](const std::filesystem::path& page) {
    const PreviewWindow& window = previews_.renew([choose = pdf_.MakePrinter()](QPrinter& printer) {
      printer.setPageLayout(SheetLayout());
      return choose(printer);
    });
    pdf_.Watch(window.Printer(), target);
    previews_.print(page);
  });
}

/// If its exam is open already, with changes perhaps, it stays as it is.
void BankCommands::OpenExam(const BankQuestion& question) {
  const std::filesystem::path& file = question.exam.path;
  if (!IsOpen(file)) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(file, ignored)) {
      return Services().dialogs.ShowError(
          FillMessage(Services().strings.Text(text_id::kTakenFileGone), {PathToText(file)}));
    }
    editor_.files.OpenExam(file);
    if (!IsOpen(file)) return;
  }
  window_.activateWindow();
  const std::optional<int> place = PlaceOf(question);
  place ? editor_.questions.GoToQuestion(*place) : TellChanged(question);
}

bool BankCommands::IsOpen(const std::filesystem::path& file) const {
  std::error_code ignored;
  return std::filesystem::equivalent(editor_.state.FileName(), file, ignored);
}

/// Where the question is in the open exam. It may have another number since it was searched.
std::optional<int> BankCommands::PlaceOf(const BankQuestion& question) const {
  const FrameSetExam& exam = editor_.state.document;
  if (IsStillSo(exam.Question(question.number), question)) return question.number;
  for (int number = 1; number <= kMaxQuestions; ++number) {
    if (IsStillSo(exam.Question(number), question)) return number;
  }
  return std::nullopt;
}

}  // namespace quorvantis
