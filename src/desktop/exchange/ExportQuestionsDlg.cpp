// SPDX-License-Identifier: MIT
#include "desktop/exchange/ExportQuestionsDlg.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "editor/ProposedFileName.h"
#include "platform/UserDialogs.h"
#include "platform/texts/ExchangeTexts.h"
#include "platform/texts/ExportTexts.h"
#include "platform/texts/ImportTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QDir>
#include <QScreen>

#include <initializer_list>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

constexpr QSize kExportSize(820, 620);  // pixels

/// What a file dialog offers for a format.
std::u16string FilterOf(const FormatRow& format, const StringTable& strings) {
  const std::u16string pattern = u"*." + Utf8ToUtf16(format.extension);
  return strings.Text(format.title) + u" (" + pattern + u")|" + pattern + u"|";
}

bool IsFolder(const fs::path& folder) {
  std::error_code ignored;
  return !folder.empty() && fs::is_directory(folder, ignored);
}

}  // namespace

ExportQuestionsDlg::ExportQuestionsDlg(FrameSetExam exam, fs::path examFile, QWidget* parent)
    : QDialog(parent),
      exam_(std::move(exam)),
      examFile_(std::move(examFile)),
      services_(exam_.Services()),
      setting_(services_.applicationFolder, services_.files, services_.codePage),
      choices_(setting_.Read()),
      run_(this),
      formats_(new FormatList(services_.strings, this)),
      losses_(new LossList(services_.strings, this)),
      target_(new QLineEdit(this)),
      choose_(MakeButton("exportChooseFile", text_id::kExchangeChooseFile, &ExportQuestionsDlg::ChooseFile)),
      status_(new QLabel(this)),
      bar_(new RunBar(run_, Text(text_id::kExchangeWriting), this)),
      export_(MakeButton("exportWrite", text_id::kExchangeDoExport, &ExportQuestionsDlg::Export)),
      close_(MakeButton("exportClose", text_id::kCancel, &ExportQuestionsDlg::reject)) {
  setObjectName("exportQuestions");
  setWindowTitle(Text(text_id::kExchangeExport));
  setWindowModality(Qt::ApplicationModal);
  PlaceParts();
  formats_->Choose(choices_.format);
  target_->setText(PathToQString(ProposedTarget()));
  connect(formats_, &FormatList::Changed, this, &ExportQuestionsDlg::FormatChanged);
  connect(target_, &QLineEdit::textEdited, status_, &QLabel::clear);
  connect(&run_, &BackgroundRun::Changed, this, &ExportQuestionsDlg::ShowRun);
  Foresee();
  ShowForeseen();
  resize(kExportSize.boundedTo(screen()->availableSize()));
  formats_->setFocus();
}

QPushButton* ExportQuestionsDlg::MakeButton(const char* name, int text,
                                            void (ExportQuestionsDlg::*command)()) {
  auto* button = MakePushButton(this, name, Text(text));
  connect(button, &QPushButton::clicked, this, command);
  return button;
}

void ExportQuestionsDlg::PlaceParts() {
  auto* label = new QLabel(Text(text_id::kExchangeFile), this);
  label->setBuddy(target_);
  NameControl(target_, "exportFile", label->text());
  NameControl(status_, "exportStatus", {});
  status_->setTextFormat(Qt::PlainText);
  status_->setWordWrap(true);
  auto* file = new QHBoxLayout;
  file->addWidget(label);
  file->addWidget(target_, 1);
  file->addWidget(choose_);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(status_, 1);
  for (QWidget* widget : std::initializer_list<QWidget*>{bar_, export_, close_}) bottom->addWidget(widget);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(formats_);
  layout->addWidget(losses_, 1);
  layout->addLayout(file);
  layout->addLayout(bottom);
}

/// Beside the last one; otherwise beside the exam. It is called as the exam is.
fs::path ExportQuestionsDlg::ProposedTarget() const {
  fs::path folder = choices_.writtenTo;
  if (!IsFolder(folder)) folder = examFile_.parent_path();
  if (!IsFolder(folder)) folder = QStringToPath(QDir::homePath());
  const fs::path name =
      examFile_.empty() ? TextToPath(ProposedFileName(exam_.title)) : examFile_.filename().stem();
  return folder / (name.native() + "." + std::string(formats_->Chosen().extension));
}

/// A name that was typed keeps its beginning.
void ExportQuestionsDlg::FormatChanged() {
  fs::path target = Target();
  if (!target.empty()) {
    target.replace_extension(std::string(formats_->Chosen().extension));
    target_->setText(PathToQString(target));
  }
  status_->clear();
  Foresee();
  ShowForeseen();
}

bool ExportQuestionsDlg::Foresee() {
  ForeseenExport now = ForeseeExport(exam_, formats_->Chosen());
  const bool isShown = now.losses == foreseen_.losses;
  foreseen_ = std::move(now);
  return isShown;
}

void ExportQuestionsDlg::ShowForeseen() {
  const bool loses = !foreseen_.losses.empty();
  losses_->Show(ToQString(NamingFormat(loses ? text_id::kExchangeLosses : text_id::kExchangeNoLosses)),
                foreseen_.losses);
  export_->setText(Text(loses ? text_id::kExchangeExportAnyway : text_id::kExchangeDoExport));
  export_->setAccessibleName(export_->text());
  export_->setDefault(!loses);
  close_->setText(Text(text_id::kCancel));
  close_->setAccessibleName(close_->text());
  ShowRun();
  if (!foreseen_.held.questions.empty()) return;
  const bool isEmpty = exam_.LastCountedQuestion() == 0;
  Tell(isEmpty ? services_.strings.Text(text_id::kExchangeEmptyExam)
               : NamingFormat(text_id::kExchangeHoldsNothing));
}

void ExportQuestionsDlg::ChooseFile() {
  const FormatRow& format = formats_->Chosen();
  const fs::path proposed = Target().empty() ? ProposedTarget() : Target();
  const auto chosen =
      services_.dialogs.ChooseFileToSave({FilterOf(format, services_.strings), Utf8ToUtf16(format.extension),
                                          PathToText(proposed.filename()), proposed.parent_path()});
  if (!chosen) return;
  status_->clear();
  mayBeReplaced_ = *chosen;
  target_->setText(PathToQString(*chosen));
}

void ExportQuestionsDlg::Export() {
  if (run_.IsRunning()) return;
  CompleteTarget();
  if (!AcceptTarget()) return;
  if (!Foresee()) {
    ShowForeseen();
    return Tell(services_.strings.Text(text_id::kExchangeLossesChanged));
  }
  Write();
}

/// A name that was typed without an extension gets that of the format. A folder is told instead.
void ExportQuestionsDlg::CompleteTarget() {
  fs::path target = Target();
  const bool hasExtension = target.extension().native().size() > 1;  // more than a dot at the end
  if (target.filename().empty() || hasExtension || IsFolder(target)) return;
  target.replace_extension(std::string(formats_->Chosen().extension));
  target_->setText(PathToQString(target));
}

bool ExportQuestionsDlg::AcceptTarget() {
  const StringTable& strings = services_.strings;
  const fs::path target = Target();
  if (target.filename().empty()) {
    Tell(strings.Text(text_id::kExchangeNoTarget));
    target_->setFocus();
    return false;
  }
  std::error_code error;
  if (fs::equivalent(target, examFile_, error)) {
    Tell(FillMessage(strings.Text(text_id::kExchangeTargetIsExam), {PathToText(target)}));
    target_->setFocus();
    return false;
  }
  if (target == mayBeReplaced_ || !fs::exists(target, error) || fs::is_directory(target, error)) return true;
  const std::u16string question = strings.Text(text_id::kExchangeReplaceAsk);
  return services_.dialogs.AskYesToLose(FillMessage(question, {PathToText(target)}));
}

void ExportQuestionsDlg::Write() {
  Tell(services_.strings.Text(text_id::kExchangeWriting));
  run_.Start([this, held = foreseen_.held, format = &formats_->Chosen(),
              target = Target()](const BackgroundRun::Cancelled& isCancelled) {
    SharedProgress progress = bar_->MakeProgress(isCancelled);
    const WritingTools tools{services_.strings, services_.files, progress};
    const std::error_code error = WriteQuestionFile(held, *format, target, tools);
    return [this, error] { TakeWritten(error); };
  });
}

void ExportQuestionsDlg::TakeWritten(const std::error_code& error) {
  const StringTable& strings = services_.strings;
  const fs::path target = Target();
  mayBeReplaced_.clear();
  if (error == std::errc::operation_canceled) return Tell(strings.Text(text_id::kExchangeNotWritten));
  if (error)
    return Tell(
        FillMessage(strings.Text(text_id::kCannotWrite), {PathToText(target), Utf8ToUtf16(error.message())}));
  choices_.format = Utf8ToUtf16(formats_->Chosen().name);
  choices_.writtenTo = target.parent_path();
  setting_.Write(choices_);
  const auto count = static_cast<std::int64_t>(foreseen_.held.questions.size());
  Tell(FillMessage(strings.Text(text_id::kExchangeWritten), {FormatInteger(count), PathToText(target)}) +
       u' ' + strings.Text(formats_->Chosen().purpose));
  close_->setText(Text(text_id::kClose));
  close_->setAccessibleName(close_->text());
  close_->setFocus();
}

void ExportQuestionsDlg::ShowRun() {
  const bool isRunning = run_.IsRunning();
  for (QWidget* widget : std::initializer_list<QWidget*>{formats_, target_, choose_})
    widget->setEnabled(!isRunning);
  export_->setEnabled(!isRunning && !foreseen_.held.questions.empty());
  if (!isRunning) return;
  close_->setText(Text(text_id::kCancel));
  close_->setAccessibleName(close_->text());
  close_->setFocus();
}

void ExportQuestionsDlg::reject() {
  if (run_.IsRunning()) return run_.Cancel();
  QDialog::reject();
}

void ExportQuestionsDlg::Tell(const std::u16string& text) {
  status_->setText(ToQString(text));
  status_->setAccessibleName(status_->text());
  QAccessibleEvent told(status_, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

/// What is typed is seen from the folder of the exam.
fs::path ExportQuestionsDlg::Target() const {
  const QString typed = target_->text().trimmed();
  if (typed.isEmpty()) return {};
  const fs::path folder = examFile_.empty() ? QStringToPath(QDir::homePath()) : examFile_.parent_path();
  return (folder / QStringToPath(typed)).lexically_normal();
}

QString ExportQuestionsDlg::Text(int number) const {
  return ToQString(services_.strings.Text(number));
}

std::u16string ExportQuestionsDlg::NamingFormat(int text) const {
  return FillMessage(services_.strings.Text(text), {services_.strings.Text(formats_->Chosen().title)});
}

}  // namespace quorvantis
