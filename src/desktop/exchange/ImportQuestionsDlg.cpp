// SPDX-License-Identifier: MIT
#include "desktop/exchange/ImportQuestionsDlg.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "overview/OverviewRows.h"
#include "platform/texts/ExchangeTexts.h"
#include "platform/texts/OverviewTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr QSize kImportSize(820, 600);  // pixels

/// Whether a file brings more than questions.
bool HasHeader(const FrameSetExam& exam) {
  return !exam.title.empty() || exam.randomMode != RandomMode::Off || exam.scoreMode == ScoreMode::Custom;
}

}  // namespace

ImportQuestionsDlg::ImportQuestionsDlg(const ExamServices& services, std::filesystem::path file,
                                       Target target, QWidget* parent)
    : QDialog(parent),
      services_(services),
      file_(std::move(file)),
      target_(std::move(target)),
      run_(this),
      format_(new QComboBox(this)),
      heading_(new QLabel(this)),
      questions_(
          new TickedQuestions(target_.place, services.strings, Text(text_id::kExchangeLossPlaces), this)),
      losses_(new LossList(services.strings, this)),
      bar_(new RunBar(run_, Text(text_id::kExchangeReading), this)),
      insert_(MakeButton("importInsert",
                         target_.place.after > 0 ? text_id::kExchangeInsert : text_id::kInsertTicked,
                         &QDialog::accept)),
      cancel_(MakeButton("importCancel", text_id::kCancel, &QDialog::reject)) {
  setObjectName("importQuestions");
  setWindowTitle(ToQString(
      FillMessage(services.strings.Text(text_id::kExchangeImport), {PathToText(file_.filename())})));
  setWindowModality(Qt::ApplicationModal);
  FillFormats();
  PlaceParts();
  connect(format_, &QComboBox::activated, this, &ImportQuestionsDlg::StartReading);
  connect(questions_, &TickedQuestions::Changed, this, &ImportQuestionsDlg::EnableParts);
  connect(&run_, &BackgroundRun::Changed, this, &ImportQuestionsDlg::EnableParts);
  insert_->setDefault(true);
  resize(kImportSize.boundedTo(screen()->availableSize()));
  StartReading();
}

QPushButton* ImportQuestionsDlg::MakeButton(const char* name, int text, void (QDialog::*command)()) {
  auto* button = MakePushButton(this, name, Text(text));
  connect(button, &QPushButton::clicked, this, command);
  return button;
}

/// With none chosen, the file's content decides.
void ImportQuestionsDlg::FillFormats() {
  NameControl(format_, "importFormat", Text(text_id::kExchangeFormat));
  for (const FormatRow& format : Formats()) {
    if (format.reader != nullptr)
      format_->addItem(Text(format.title),
                       QString::fromUtf8(format.name.data(), qsizetype(format.name.size())));
  }
  format_->setCurrentIndex(-1);
}

void ImportQuestionsDlg::PlaceParts() {
  auto* label = new QLabel(Text(text_id::kExchangeFormat), this);
  label->setBuddy(format_);
  NameControl(heading_, "importHeading", {});
  heading_->setTextFormat(Qt::PlainText);
  heading_->setWordWrap(true);
  auto* top = new QHBoxLayout;
  top->addWidget(label);
  top->addWidget(format_);
  top->addStretch();
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(bar_);
  bottom->addStretch();
  bottom->addWidget(insert_);
  bottom->addWidget(cancel_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(top);
  layout->addWidget(heading_);
  layout->addWidget(questions_, 3);
  layout->addWidget(losses_, 1);
  layout->addLayout(bottom);
}

void ImportQuestionsDlg::StartReading() {
  const FormatRow* const format = FormatNamed(format_->currentData().toString().toStdString());
  heading_->setText(Text(text_id::kExchangeReading));
  run_.Start([this, format, folder = target_.newFolder()](const BackgroundRun::Cancelled& isCancelled) {
    SharedProgress progress = bar_->MakeProgress(isCancelled);
    auto read = std::make_shared<const ForeignExam>(services_, folder, file_, format, progress);
    return [this, read] { TakeRead(read); };
  });
}

void ImportQuestionsDlg::TakeRead(std::shared_ptr<const ForeignExam> read) {
  read_ = std::move(read);
  if (read_->Format() != nullptr) {
    const std::string_view name = read_->Format()->name;
    format_->setCurrentIndex(format_->findData(QString::fromUtf8(name.data(), qsizetype(name.size()))));
  }
  questions_->Show(OverviewRows({read_->Exam(), read_->QuestionCount()}));
  questions_->TickWhatFits();
  heading_->setText(Heading());
  heading_->setAccessibleName(heading_->text());
  QAccessibleEvent told(heading_, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
  const std::vector<ExchangeNote> notes = Notes();
  const bool isNothing = notes.empty() && read_->QuestionCount() == 0;
  const int heading = notes.empty() ? text_id::kExchangeNothingLost : text_id::kExchangeReadLosses;
  losses_->Show(isNothing ? QString() : Text(heading), notes);
  EnableParts();
  read_->QuestionCount() > 0 ? questions_->FocusList() : format_->setFocus();
}

QString ImportQuestionsDlg::Heading() const {
  if (!read_->Problem().empty()) return ToQString(read_->Problem());
  const StringTable& strings = services_.strings;
  return ToQString(
      FillMessage(strings.Text(text_id::kExchangeFound),
                  {FormatInteger(read_->QuestionCount()), strings.Text(read_->Format()->title)}));
}

std::vector<ExchangeNote> ImportQuestionsDlg::Notes() const {
  std::vector<ExchangeNote> notes = read_->NotesByOwnNumbers();
  if (target_.isEmpty) return notes;
  std::erase_if(notes, [](const ExchangeNote& note) { return note.text == text_id::kExchangeTooManyScores; });
  if (HasHeader(read_->Exam())) notes.push_back({0, text_id::kExchangeHeaderStays});
  return notes;
}

void ImportQuestionsDlg::EnableParts() {
  const bool isRunning = run_.IsRunning();
  questions_->setEnabled(!isRunning && read_ && read_->QuestionCount() > 0);
  insert_->setEnabled(questions_->isEnabled() && questions_->CanBeInserted());
}

QString ImportQuestionsDlg::Text(int number) const {
  return ToQString(services_.strings.Text(number));
}

}  // namespace quorvantis
