// SPDX-License-Identifier: MIT
#include "desktop/WindowLayout.h"

#include <QBoxLayout>

#include <vector>

namespace quorvantis {
namespace {

constexpr int kMargin = 10;
constexpr int kGap = 10;

QBoxLayout* FileRow(const FileButtons& files) {
  auto* row = new QHBoxLayout;
  row->setSpacing(0);
  for (QToolButton* button : files.InOrder()) row->addWidget(button);
  row->addStretch();
  return row;
}

QBoxLayout* ExamRow(const ExamControls& exam) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  row->addWidget(exam.titleLabel);
  row->addWidget(exam.title, 7);
  row->addWidget(exam.random);
  row->addWidget(exam.attachmentsLabel);
  row->addWidget(exam.attachments, 3);
  return row;
}

QBoxLayout* KindRow(const QuestionControls& question) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  row->addWidget(question.label);
  row->addWidget(question.number);
  for (QAbstractButton* button : question.kinds->buttons()) row->addWidget(button);
  row->addStretch();
  return row;
}

QBoxLayout* NavigationRow(const QuestionControls& question) {
  auto* row = new QHBoxLayout;
  row->setSpacing(0);
  for (QToolButton* button : question.navigation) {
    if (button->objectName() == "insertQuestion") row->addSpacing(kGap);
    row->addWidget(button);
  }
  row->addStretch();
  return row;
}

/// The rows of a panel; the margins are those of what is around it.
QBoxLayout* RowsOf(QWidget* panel) {
  auto* rows = new QVBoxLayout(panel);
  rows->setContentsMargins(0, 0, 0, 0);
  return rows;
}

QBoxLayout* TextRow(const QuestionControls& question) {
  QBoxLayout* attachments = RowsOf(question.attachmentPanel);
  attachments->addWidget(question.attachments, 1);
  attachments->addWidget(question.oralToggle);
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  row->addWidget(question.text, 7);
  row->addWidget(question.attachmentPanel, 3);
  return row;
}

void ArrangeChoice(const AnswerControls& answers) {
  QBoxLayout* rows = RowsOf(answers.choicePanel);
  rows->setSpacing(kGap);
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    answers.boxes[i]->setMinimumWidth(40);
    auto* row = new QHBoxLayout;
    row->addWidget(answers.boxes[i]);
    row->addWidget(answers.options[i], 1);
    rows->addLayout(row, 1);
  }
}

void ArrangeFillIn(const AnswerControls& answers) {
  auto* line = new QHBoxLayout;
  line->addWidget(answers.answer, 1);
  line->addWidget(answers.separator);
  QBoxLayout* rows = RowsOf(answers.fillInPanel);
  rows->addWidget(answers.answerLabel);
  rows->addLayout(line);
}

void ArrangeEssay(const AnswerControls& answers) {
  QBoxLayout* rows = RowsOf(answers.essayPanel);
  rows->addWidget(answers.essayLabel);
  rows->addWidget(answers.essay, 1);
}

void ArrangeQuestionArea(const WindowControls& controls) {
  auto* column = new QVBoxLayout(controls.questionArea);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kGap);
  column->addLayout(KindRow(controls.question));
  column->addLayout(NavigationRow(controls.question));
  column->addLayout(TextRow(controls.question), 2);
  ArrangeChoice(controls.answers);
  column->addWidget(controls.answers.choicePanel, 5);
  ArrangeFillIn(controls.answers);
  column->addWidget(controls.answers.fillInPanel);
  ArrangeEssay(controls.answers);
  column->addWidget(controls.answers.essayPanel, 3);
}

void SetTabOrder(const WindowControls& controls) {
  std::vector<QWidget*> order{controls.question.text, controls.question.attachments,
                              controls.question.oralToggle};
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    order.push_back(controls.answers.boxes[i]);
    order.push_back(controls.answers.options[i]);
  }
  order.insert(order.end(), {controls.answers.answer, controls.answers.separator, controls.answers.essay});
  order.insert(order.end(), controls.question.navigation.begin(), controls.question.navigation.end());
  order.insert(order.end(), controls.files.InOrder().begin(), controls.files.InOrder().end());
  order.insert(order.end(), {controls.exam.title, controls.exam.random, controls.exam.attachments});
  for (QAbstractButton* button : controls.question.kinds->buttons()) order.push_back(button);
  for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace

void ArrangeWindow(QWidget* window, const WindowControls& controls) {
  auto* column = new QVBoxLayout(window);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->setSpacing(kGap);
  column->addLayout(FileRow(controls.files));
  column->addLayout(ExamRow(controls.exam));
  ArrangeQuestionArea(controls);
  column->addWidget(controls.questionArea, 1);
  SetTabOrder(controls);
}

}  // namespace quorvantis
