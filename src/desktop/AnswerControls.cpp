// SPDX-License-Identifier: MIT
#include "desktop/AnswerControls.h"

#include "desktop/Controls.h"
#include "desktop/QtText.h"
#include "platform/Texts.h"

namespace quorvantis {

AnswerControls::AnswerControls(ExamEditor& editor, const StringTable& strings, QWidget* parent)
    : choicePanel(new QWidget(parent)),
      fillInPanel(new QWidget(parent)),
      essayPanel(new QWidget(parent)),
      editor_(editor) {
  const auto text = [&strings](int id) { return ToQString(strings.Text(id)); };
  for (std::size_t i = 0; i < kOptionCount; ++i) MakeOption(i, text(text_id::kChoice));
  MakeAnswerLine(text(text_id::kAnswer), text(text_id::kListSeparatorTip));
  MakeEssay(text(text_id::kAnswer));
}

void AnswerControls::MakeOption(std::size_t index, const QString& caption) {
  const QString letter(QChar(static_cast<char16_t>(u'A' + index)));
  boxes[index] = new StateBox(letter, choicePanel);
  NameControl(boxes[index], qPrintable("box" + letter), letter);
  QObject::connect(boxes[index], &StateBox::clicked, boxes[index], [this, index] { TickBox(index); });

  options[index] = new MultiLineField(editor_.questions, OptionField(index), choicePanel);
  NameControl(options[index], qPrintable("option" + letter), caption + " " + letter);
}

void AnswerControls::MakeAnswerLine(const QString& caption, const QString& separatorTip) {
  answerLabel = MakeLabel(fillInPanel, "answerLabel", caption);
  answer = new OneLineField(editor_.questions, FormField::Answer, fillInPanel);
  NameControl(answer, "answer", caption);
  answerLabel->setBuddy(answer);
  separator = MakeSmallButton(fillInPanel, "listSeparator", "list-separator.svg", separatorTip);
  QObject::connect(separator, &QToolButton::clicked, separator, [this] { AppendSeparator(); });
}

void AnswerControls::MakeEssay(const QString& caption) {
  essayLabel = MakeLabel(essayPanel, "essayLabel", caption);
  essay = new MultiLineField(editor_.questions, FormField::Essay, essayPanel);
  NameControl(essay, "essay", caption);
  essayLabel->setBuddy(essay);
}

void AnswerControls::Load() {
  for (MultiLineField* option : options) option->Load();
  answer->Load();
  essay->Load();
}

void AnswerControls::Refresh() {
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    boxes[i]->ShowState(editor_.questions.Form().checks[i]);
    options[i]->FollowForm();
  }
  answer->FollowForm();
  essay->FollowForm();
  ShowKind(editor_.state.currentKind);
}

void AnswerControls::TickBox(std::size_t index) {
  const CheckState state = editor_.questions.Form().checks[index];
  editor_.questions.TickAnswerBox(index, state == CheckState::Off);
  boxes[index]->ShowState(editor_.questions.Form().checks[index]);
}

/// The next answer can be typed at once.
void AnswerControls::AppendSeparator() {
  editor_.questions.AppendListSeparator();
  answer->setFocus();
  answer->end(false);
}

void AnswerControls::ShowKind(QuestionKind kind) {
  choicePanel->setVisible(kind == QuestionKind::Choice);
  fillInPanel->setVisible(kind == QuestionKind::FillIn);
  essayPanel->setVisible(kind == QuestionKind::Essay);
}

}  // namespace quorvantis
