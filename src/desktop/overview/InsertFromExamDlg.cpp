// SPDX-License-Identifier: MIT
#include "desktop/overview/InsertFromExamDlg.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/OverviewTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"

#include <QBoxLayout>
#include <QScreen>

namespace quorvantis {
namespace {

constexpr QSize kDialogSize(760, 480);  // pixels

}  // namespace

InsertFromExamDlg::InsertFromExamDlg(const OtherExam& other, const TickedQuestions::Place& place,
                                     const StringTable& strings, QWidget* parent)
    : QDialog(parent), strings_(strings) {
  setObjectName("insertFromExam");
  const std::u16string name = PathToText(other.File().filename());
  setWindowTitle(ToQString(FillMessage(strings.Text(text_id::kInsertFrom), {name})));
  questions_ = new TickedQuestions(place, strings, windowTitle(), this);
  auto* insert = MakeButton("insertTicked", text_id::kInsertTicked);
  auto* cancel = MakeButton("cancelInsert", text_id::kCancel);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(insert);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  for (const std::u16string& told : {other.Problem(), other.PassedOverNotice()}) {
    if (!told.empty()) layout->addWidget(MakeNotice(told));
  }
  layout->addWidget(questions_);
  layout->addLayout(buttons);
  const auto enable = [this, insert] { insert->setEnabled(questions_->CanBeInserted()); };
  connect(questions_, &TickedQuestions::Changed, insert, enable);
  connect(insert, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  resize(kDialogSize.boundedTo(screen()->availableSize()));
  questions_->Show(OverviewRows({other.Exam(), other.QuestionCount()}));
  questions_->FocusList();
}

QString InsertFromExamDlg::Text(int id) const {
  return ToQString(strings_.Text(id));
}

QLabel* InsertFromExamDlg::MakeNotice(const std::u16string& text) {
  auto* notice = new QLabel(ToQString(text), this);
  notice->setTextFormat(Qt::PlainText);
  notice->setWordWrap(true);
  return notice;
}

QPushButton* InsertFromExamDlg::MakeButton(const char* name, int text) {
  auto* button = new QPushButton(Text(text), this);
  NameControl(button, name, button->text());
  return button;
}

}  // namespace quorvantis
