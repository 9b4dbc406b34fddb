// SPDX-License-Identifier: MIT
#include "desktop/main/controls/QuestionControls.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/PlacedText.h"
#include "desktop/main/controls/AttachmentMenu.h"
#include "model/QuestionKinds.h"
#include "platform/texts/FileTexts.h"
#include "platform/texts/ProgramTexts.h"

#include <iterator>

namespace quorvantis {
namespace {

struct KindSpec {
  const char* name;
  QuestionKind kind;
  int text;
  QKeySequence key;
};

/// The buttons, in the order of the kinds.
const KindSpec kKinds[] = {
    {"kindChoice", QuestionKind::Choice, text_id::kChoice, Qt::ALT | Qt::Key_C},
    {"kindFillIn", QuestionKind::FillIn, text_id::kFillIn, Qt::ALT | Qt::Key_F},
    {"kindEssay", QuestionKind::Essay, text_id::kEssay, Qt::ALT | Qt::Key_E},
    {"kindOral", QuestionKind::Oral, text_id::kOral, Qt::ALT | Qt::Key_L},
};
static_assert(std::size(kKinds) == std::size(kQuestionKinds), "a button for every kind");

const QKeySequence kOralKey(Qt::ALT | Qt::Key_Z);

}  // namespace

QuestionControls::QuestionControls(ExamEditor& editor, const StringTable& strings, const Pictures& pictures,
                                   QWidget* parent)
    : navigation(editor, strings, pictures, parent), editor_(editor) {
  label = MakeLabel(parent, "questionLabel", ToQString(strings.Text(text_id::kQuestion)));
  number = MakeLabel(parent, "questionNumber", {});
  number->setAlignment(Qt::AlignLeading | Qt::AlignTop);  // in line with the label
  QFont bold = number->font();
  bold.setBold(true);
  number->setFont(bold);
  MakeKinds(strings, parent);
  text = new MultiLineField(editor.questions, strings, FormField::Text, parent);
  SetUpField(text, "questionText", label, {Qt::ALT | Qt::Key_Q});
  MakeAttachments(strings, parent);
  MakeOralToggle(strings, parent);
}

void QuestionControls::MakeKinds(const StringTable& strings, QWidget* parent) {
  kinds = new QButtonGroup(parent);
  for (const KindSpec& spec : kKinds) {
    const QString caption = ToQString(strings.Text(spec.text));
    auto* button = new ChoiceButton(caption, parent);
    SetUpButton(button, spec.name, caption, {spec.key},
                [this, kind = spec.kind] { editor_.questions.SelectKind(kind); });
    kinds->addButton(button, static_cast<int>(spec.kind));
  }
}

void QuestionControls::MakeAttachments(const StringTable& strings, QWidget* parent) {
  attachments = new AttachmentListBox(PlacedText(strings, text_id::kFileMissing), parent);
  NameControl(attachments, "questionAttachments", ToQString(strings.Text(text_id::kAttachToQuestion)));
  QObject::connect(attachments, &QListWidget::itemSelectionChanged, attachments,
                   [this] { editor_.attachments.SelectQuestionFile(attachments->Selected()); });
  QObject::connect(attachments, &AttachmentListBox::DeletePressed, attachments,
                   [this] { editor_.attachments.RemoveSelectedAttachment(AttachedTo::Question); });
  QObject::connect(attachments, &AttachmentListBox::MenuRequested, attachments,
                   [this](const QPoint& position) { ShowMenu(position); });
}

void QuestionControls::ShowMenu(const QPoint& position) {
  AttachmentEditor& files = editor_.attachments;
  QMenu* menu = MakeAttachmentMenu(
      files.SelectedQuestionFile(), [&files] { files.RemoveSelectedAttachment(AttachedTo::Question); },
      editor_.state.document.Services(), attachments);
  if (AnswerOf(editor_.state.CurrentKind()).oral) AddOralSwitch(*menu, files);
  menu->popup(position);
}

/// The button has room for both captions and never changes its size.
void QuestionControls::MakeOralToggle(const StringTable& strings, QWidget* parent) {
  oralToggle = new CaptionButton(parent);
  const QString off = ToQString(strings.Text(text_id::kOralOff));
  SetUpButton(oralToggle, "oralToggle", off, {kOralKey}, [this] { editor_.attachments.ToggleOral(); });
  const QString on = ToQString(strings.Text(text_id::kOralOn));
  oralToggle->resize(oralToggle->SizeFor(off).expandedTo(oralToggle->SizeFor(on)));
}

void QuestionControls::Refresh() {
  number->setText(QString::number(editor_.questions.Form().number));
  ShowKind();
  text->FollowForm();
  attachments->Show(editor_.attachments.QuestionList());
  ShowOralToggle();
}

void QuestionControls::ShowOralToggle() {
  const QString caption = ToQString(editor_.attachments.OralToggleCaption());
  oralToggle->setText(caption);
  oralToggle->setAccessibleName(caption);
  oralToggle->setVisible(editor_.attachments.OralToggleVisible());
  oralToggle->setEnabled(editor_.attachments.OralToggleVisible());
}

/// If the kind has no button, none is down. The Tab key stops at the button that is down.
void QuestionControls::ShowKind() {
  const int kind = static_cast<int>(editor_.state.CurrentKind());
  const int stop = kinds->button(kind) != nullptr ? kind : static_cast<int>(QuestionKind::Choice);
  kinds->setExclusive(false);
  for (QAbstractButton* button : kinds->buttons()) {
    button->setChecked(kinds->id(button) == kind);
    button->setFocusPolicy(kinds->id(button) == stop ? Qt::StrongFocus : Qt::ClickFocus);
  }
  kinds->setExclusive(true);
}

}  // namespace quorvantis
