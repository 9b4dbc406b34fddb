// SPDX-License-Identifier: MIT
#include "desktop/ExamControls.h"

#include "desktop/Controls.h"
#include "desktop/QtText.h"
#include "platform/Texts.h"

namespace quorvantis {

ExamControls::ExamControls(ExamEditor& editor, const StringTable& strings, QWidget* parent)
    : editor_(editor) {
  const auto text = [&strings](int id) { return ToQString(strings.Text(id)); };
  titleLabel = MakeLabel(parent, "titleLabel", text(text_id::kTitle));
  title = new OneLineField(editor.questions, FormField::Title, parent);
  NameControl(title, "title", text(text_id::kTitle));
  titleLabel->setBuddy(title);

  random = new StateBox(parent);
  NameControl(random, "random", text(text_id::kRandom));
  QObject::connect(random, &StateBox::clicked, random, [&editor] { editor.questions.CycleRandomMode(); });

  attachmentsLabel = MakeLabel(parent, "examAttachmentsLabel", text(text_id::kAttachFiles));
  attachments = new AttachmentListBox(parent);
  NameControl(attachments, "examAttachments", text(text_id::kAttachFiles));
  attachmentsLabel->setBuddy(attachments);
  QObject::connect(attachments, &QListWidget::itemSelectionChanged, attachments,
                   [this, &editor] { editor.attachments.SelectExamFile(attachments->Selected()); });
  QObject::connect(attachments, &AttachmentListBox::DeletePressed, attachments,
                   [&editor] { editor.attachments.RemoveSelectedExamFile(); });
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
