// SPDX-License-Identifier: MIT
#include "desktop/main/controls/AnswerControls.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "model/AnswerLetters.h"
#include "platform/texts/EditorTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"

namespace quorvantis {

namespace {

constexpr SmallButtonBitmaps kSeparator{"ListSeparatroU", "ListSeparatroD", nullptr, "ListSeparatroX"};

/// Moves the focus to the first answer field, whatever the kind.
const QKeySequence kAnswerKey(Qt::ALT | Qt::Key_Y);

QString Caption(const StringTable& strings, int id) {
  return ToQString(strings.Text(id));
}

QString Letter(std::size_t index) {
  return QString(QChar(OptionLetter(index)));
}

}  // namespace

AnswerControls::AnswerControls(ExamEditor& editor, const StringTable& strings, const Pictures& pictures,
                               QWidget* parent)
    : editor_(editor) {
  for (std::size_t i = 0; i < kOptionCount; ++i) MakeOption(i, strings, parent);
  MakeAnswerLine(strings, pictures, parent);
  MakeEssay(strings, parent);
}

/// Ticking the box marks the option as a right answer; its caption alone tells a screen reader too little.
void AnswerControls::MakeOption(std::size_t index, const StringTable& strings, QWidget* parent) {
  const QString letter = Letter(index);
  const QString option = Caption(strings, text_id::kChoice) + " " + letter;
  const QString isRight =
      ToQString(FillMessage(strings.Text(text_id::kIsRightAnswer), {FromQString(letter)}));
  const QKeySequence key(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + static_cast<int>(index)));
  boxes[index] = new StateBox(letter, parent);
  SetUpButton(boxes[index], qPrintable("box" + letter), isRight, {key}, [this, index] { TickBox(index); });

  options[index] = new MultiLineField(editor_.questions, strings, OptionField(index), parent);
  NameControl(options[index], qPrintable("option" + letter), option);
  if (index == 0) AddKeys(options[index], {kAnswerKey});
}

void AnswerControls::MakeAnswerLine(const StringTable& strings, const Pictures& pictures, QWidget* parent) {
  answerLabel = MakeLabel(parent, "answerLabel", Caption(strings, text_id::kAnswer));
  answer = new OneLineField(editor_.questions, strings, FormField::Answer, parent);
  SetUpField(answer, "answer", answerLabel, {kAnswerKey});
  separator = new SmallButton(pictures, kSeparator, kSeparator, parent);
  const QString tip = Caption(strings, text_id::kListSeparatorTip);
  SetUpButton(separator, "listSeparator", tip, {Qt::ALT | Qt::Key_M}, [this] { AppendSeparator(); });
  separator->setToolTip(PlainTip(tip));
}

void AnswerControls::MakeEssay(const StringTable& strings, QWidget* parent) {
  essayLabel = MakeLabel(parent, "essayLabel", Caption(strings, text_id::kAnswer));
  essay = new MultiLineField(editor_.questions, strings, FormField::Essay, parent);
  SetUpField(essay, "essay", essayLabel, {kAnswerKey});
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
  ShowControls(editor_.questions.ShownKindControls());
}

QWidget* AnswerControls::FirstField() const {
  const AnswerParts& shown = editor_.questions.ShownKindControls();
  if (shown.options) return options.front();
  if (shown.fillIn) return answer;
  return shown.essay ? essay : nullptr;
}

void AnswerControls::TickBox(std::size_t index) {
  const CheckState state = editor_.questions.Form().checks[index];
  editor_.questions.TickAnswerBox(index, state == CheckState::Off);
  boxes[index]->ShowState(editor_.questions.Form().checks[index]);
}

/// So that the next answer can be typed at once.
void AnswerControls::AppendSeparator() {
  editor_.questions.AppendListSeparator();
  answer->setFocus();
  answer->end(false);
}

void AnswerControls::ShowControls(const AnswerParts& shown) {
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    boxes[i]->setVisible(shown.options);
    options[i]->setVisible(shown.options);
  }
  for (QWidget* control : std::initializer_list<QWidget*>{answerLabel, answer, separator}) {
    control->setVisible(shown.fillIn);
  }
  for (QWidget* control : std::initializer_list<QWidget*>{essayLabel, essay}) {
    control->setVisible(shown.essay);
  }
}

}  // namespace quorvantis
