// SPDX-License-Identifier: MIT
#include "desktop/FileButtons.h"

#include "desktop/Controls.h"
#include "desktop/QtText.h"
#include "platform/Texts.h"

#include <functional>

namespace quorvantis {

struct FileButtons::Spec {
  const char* name;
  const char* picture;
  int text;
  QKeySequence shortcut;
  std::function<void(ExamEditor&)> command;
};

FileButtons::FileButtons(ExamEditor& editor, const StringTable& strings, QWidget* parent) : editor_(editor) {
  const Spec specs[] = {
      {"new", "new.svg", text_id::kNew, Qt::CTRL | Qt::Key_N, [](ExamEditor& e) { e.files.NewExam(); }},
      {"open", "open.svg", text_id::kOpen, Qt::CTRL | Qt::Key_O, [](ExamEditor& e) { e.files.OpenExam(); }},
      {"save", "save.svg", text_id::kSave, Qt::CTRL | Qt::Key_S, [](ExamEditor& e) { e.files.SaveExam(); }},
      {"saveAs", "save-as.svg", text_id::kSaveAs, Qt::CTRL | Qt::SHIFT | Qt::Key_S,
       [](ExamEditor& e) { e.files.SaveExamAs(); }},
      {"attachFiles",
       "attach.svg",
       text_id::kAttachFiles,
       {},
       [](ExamEditor& e) { e.attachments.AttachExamFile(); }},
  };
  for (const Spec& spec : specs) Add(spec, strings, parent);
}

void FileButtons::Add(const Spec& spec, const StringTable& strings, QWidget* parent) {
  QToolButton* button = MakeLargeButton(parent, spec.name, spec.picture, ToQString(strings.Text(spec.text)));
  AddShortcut(button, spec.shortcut);
  QObject::connect(button, &QToolButton::clicked, button,
                   [&editor = editor_, command = spec.command] { command(editor); });
  buttons_.push_back(button);
}

}  // namespace quorvantis
