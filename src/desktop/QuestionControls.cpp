// SPDX-License-Identifier: MIT
#include "desktop/QuestionControls.h"

#include "desktop/Controls.h"
#include "desktop/QtText.h"
#include "platform/Texts.h"

namespace quorvantis {
namespace {

struct KindButton {
  const char* name;
  QuestionKind kind;
  int text;
};

constexpr KindButton kKinds[] = {{"kindChoice", QuestionKind::Choice, text_id::kChoice},
                                 {"kindFillIn", QuestionKind::FillIn, text_id::kFillIn},
                                 {"kindEssay", QuestionKind::Essay, text_id::kEssay},
                                 {"kindOral", QuestionKind::Oral, text_id::kOral}};

struct NavigationButton {
  const char* name;
  const char* picture;
  int tip;
  QKeySequence shortcut;
  void (QuestionEditor::*command)();
};

const std::vector<NavigationButton>& Navigation() {
  static const std::vector<NavigationButton> buttons = {
      {"back10", "back-10.svg", text_id::kBackward10, Qt::CTRL | Qt::Key_PageUp, &QuestionEditor::GoBack10},
      {"previous", "previous.svg", text_id::kPrevious, Qt::Key_PageUp, &QuestionEditor::GoPrevious},
      {"next", "next.svg", text_id::kNext, Qt::Key_PageDown, &QuestionEditor::GoNext},
      {"forward10", "forward-10.svg", text_id::kForward10, Qt::CTRL | Qt::Key_PageDown,
       &QuestionEditor::GoForward10},
      {"insertQuestion", "insert.svg", text_id::kInsertQuestion, {}, &QuestionEditor::InsertHere},
      {"deleteQuestion", "delete.svg", text_id::kDeleteQuestion, {}, &QuestionEditor::DeleteHere},
  };
  return buttons;
}

}  // namespace

QuestionControls::QuestionControls(ExamEditor& editor, const StringTable& strings, QWidget* parent)
    : editor_(editor) {
  const QString caption = ToQString(strings.Text(text_id::kQuestion));
  label = MakeLabel(parent, "questionLabel", caption);
  number = MakeLabel(parent, "questionNumber", {});
  QFont bold = number->font();
  bold.setBold(true);
  number->setFont(bold);
  MakeKinds(strings, parent);
  text = new MultiLineField(editor.questions, FormField::Text, parent);
  NameControl(text, "questionText", caption);
  label->setBuddy(text);
  attachmentPanel = new QWidget(parent);
  MakeAttachments(strings);
  MakeNavigation(strings, parent);
}

void QuestionControls::MakeKinds(const StringTable& strings, QWidget* parent) {
  kinds = new QButtonGroup(parent);
  for (const KindButton& kind : kKinds) {
    auto* button = new QPushButton(ToQString(strings.Text(kind.text)), parent);
    NameControl(button, kind.name, button->text());
    button->setCheckable(true);
    button->setMinimumSize(90, 30);
    kinds->addButton(button, static_cast<int>(kind.kind));
  }
  QObject::connect(kinds, &QButtonGroup::idClicked, kinds,
                   [this](int id) { editor_.questions.SelectKind(static_cast<QuestionKind>(id)); });
}

void QuestionControls::MakeNavigation(const StringTable& strings, QWidget* parent) {
  for (const NavigationButton& spec : Navigation()) {
    QToolButton* button = MakeSmallButton(parent, spec.name, spec.picture, ToQString(strings.Text(spec.tip)));
    AddShortcut(button, spec.shortcut);
    QObject::connect(button, &QToolButton::clicked, button,
                     [this, command = spec.command] { (editor_.questions.*command)(); });
    navigation.push_back(button);
  }
  const QString tip = ToQString(strings.Text(text_id::kAttachToQuestion));
  QToolButton* attach = MakeSmallButton(parent, "attachToQuestion", "attach-question.svg", tip);
  QObject::connect(attach, &QToolButton::clicked, attach,
                   [this] { editor_.attachments.AttachQuestionFile(); });
  navigation.push_back(attach);
}

void QuestionControls::MakeAttachments(const StringTable& strings) {
  attachments = new AttachmentListBox(attachmentPanel);
  NameControl(attachments, "questionAttachments", ToQString(strings.Text(text_id::kAttachToQuestion)));
  QObject::connect(attachments, &QListWidget::itemSelectionChanged, attachments,
                   [this] { editor_.attachments.SelectQuestionFile(attachments->Selected()); });
  QObject::connect(attachments, &AttachmentListBox::DeletePressed, attachments,
                   [this] { editor_.attachments.RemoveSelectedQuestionFile(); });

  oralToggle = new QPushButton(attachmentPanel);
  oralToggle->setObjectName("oralToggle");
  QObject::connect(oralToggle, &QPushButton::clicked, oralToggle,
                   [this] { editor_.attachments.ToggleOral(); });
}

void QuestionControls::Refresh() {
  number->setText(QString::number(editor_.questions.Form().number));
  ShowKind();
  text->FollowForm();
  attachments->Show(editor_.attachments.QuestionList());
  attachmentPanel->setVisible(editor_.attachments.QuestionList().visible);
  oralToggle->setText(ToQString(editor_.attachments.OralToggleCaption()));
  oralToggle->setAccessibleName(oralToggle->text());
  oralToggle->setVisible(editor_.attachments.OralToggleVisible());
}

/// The kind stands out in the colour of a selection; no button is down for a kind that has none.
void QuestionControls::ShowKind() {
  kinds->setExclusive(false);
  for (QAbstractButton* button : kinds->buttons()) {
    const bool current = kinds->id(button) == static_cast<int>(editor_.state.currentKind);
    button->setChecked(current);
    QPalette colours;
    if (current) {
      colours.setBrush(QPalette::Button, colours.highlight());
      colours.setBrush(QPalette::ButtonText, colours.highlightedText());
    }
    button->setPalette(colours);
  }
  kinds->setExclusive(true);
}

}  // namespace quorvantis
