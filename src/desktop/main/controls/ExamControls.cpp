// SPDX-License-Identifier: MIT
#include "desktop/main/controls/ExamControls.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/PlacedText.h"
#include "desktop/main/controls/AttachmentMenu.h"
#include "platform/texts/FileTexts.h"
#include "platform/texts/ProgramTexts.h"

namespace quorvantis {

ExamControls::ExamControls(ExamEditor& editor, const StringTable& strings, QWidget* parent)
    : editor_(editor) {
  const auto text = [&strings](int id) { return ToQString(strings.Text(id)); };
  titleLabel = MakeLabel(parent, "titleLabel", text(text_id::kTitle));
  title = new OneLineField(editor.questions, strings, FormField::Title, parent);
  SetUpField(title, "title", titleLabel, {Qt::ALT | Qt::Key_T});

  random = new StateBox(parent);
  SetUpButton(random, "random", text(text_id::kRandom), {Qt::ALT | Qt::Key_R},
              [&editor] { editor.questions.CycleRandomMode(); });

  attachmentsLabel = MakeLabel(parent, "examAttachmentsLabel", text(text_id::kAttachFiles));
  attachments = new AttachmentListBox(PlacedText(strings, text_id::kFileMissing), parent);
  SetUpField(attachments, "examAttachments", attachmentsLabel, {});
  QObject::connect(attachments, &QListWidget::itemSelectionChanged, attachments,
                   [this, &editor] { editor.attachments.SelectExamFile(attachments->Selected()); });
  QObject::connect(attachments, &AttachmentListBox::DeletePressed, attachments,
                   [&editor] { editor.attachments.RemoveSelectedAttachment(AttachedTo::Exam); });
  QObject::connect(attachments, &AttachmentListBox::MenuRequested, attachments,
                   [this](const QPoint& position) { ShowMenu(position); });
}

void ExamControls::ShowMenu(const QPoint& position) {
  AttachmentEditor& files = editor_.attachments;
  MakeAttachmentMenu(
      files.SelectedExamFile(), [&files] { files.RemoveSelectedAttachment(AttachedTo::Exam); },
      editor_.state.document.Services(), attachments)
      ->popup(position);
}

void ExamControls::Refresh() {
  const RandomMode mode = editor_.questions.Form().random;
  random->ShowState(mode == RandomMode::Options    ? CheckState::On
                    : mode == RandomMode::Sequence ? CheckState::Grey
                                                   : CheckState::Off);
  random->setText(ToQString(editor_.questions.RandomCaption()));
  random->setAccessibleName(random->text());
  title->FollowForm();
  attachments->Show(editor_.attachments.ExamList());
  attachmentsLabel->setVisible(editor_.attachments.ExamList().visible);
}

}  // namespace quorvantis
