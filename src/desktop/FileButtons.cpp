// SPDX-License-Identifier: MIT
#include "desktop/FileButtons.h"

#include "desktop/Controls.h"
#include "desktop/QtText.h"
#include "platform/Texts.h"

namespace quorvantis {

struct FileButtons::Spec {
  const char* name;
  const char* picture;
  int text;
  QKeySequence shortcut;
  std::function<void()> command;
};

FileButtons::FileButtons(ExamEditor& editor, const PageCommands& pages, const StringTable& strings,
                         QWidget* parent) {
  const QKeySequence none;
  const Spec specs[] = {
      {"new", "new.svg", text_id::kNew, Qt::CTRL | Qt::Key_N, [&editor] { editor.files.NewExam(); }},
      {"open", "open.svg", text_id::kOpen, Qt::CTRL | Qt::Key_O, [&editor] { editor.files.OpenExam(); }},
      {"save", "save.svg", text_id::kSave, Qt::CTRL | Qt::Key_S, [&editor] { editor.files.SaveExam(); }},
      {"saveAs", "save-as.svg", text_id::kSaveAs, Qt::CTRL | Qt::SHIFT | Qt::Key_S,
       [&editor] { editor.files.SaveExamAs(); }},
      {"attachFiles", "attach.svg", text_id::kAttachFiles, none,
       [&editor] { editor.attachments.AttachExamFile(); }},
      {"preview", "preview.svg", text_id::kPreview, Qt::Key_F5, pages.preview},
      {"print", "print.svg", text_id::kPrint, Qt::CTRL | Qt::Key_P, pages.print},
  };
  for (const Spec& spec : specs) Add(spec, strings, parent);
}

void FileButtons::Add(const Spec& spec, const StringTable& strings, QWidget* parent) {
  QToolButton* button = MakeLargeButton(parent, spec.name, spec.picture, ToQString(strings.Text(spec.text)));
  AddShortcut(button, spec.shortcut);
  QObject::connect(button, &QToolButton::clicked, button, spec.command);
  buttons_.push_back(button);
}

}  // namespace quorvantis
