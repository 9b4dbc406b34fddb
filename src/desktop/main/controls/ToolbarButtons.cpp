// SPDX-License-Identifier: MIT
#include "desktop/main/controls/ToolbarButtons.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "desktop/main/controls/Attaching.h"
#include "platform/texts/ProgramTexts.h"

#include <utility>

namespace quorvantis {

ToolbarButtons::ToolbarButtons(ExamEditor& editor, const WindowCommands& window, const StringTable& strings,
                               const Pictures& pictures, QWidget* parent) {
  using namespace text_id;
  const auto make = [&](const char* name, const char* picture, int text, const Keys& keys,
                        std::function<void()> command) {
    const QString caption = ToQString(strings.Text(text));
    auto* const button = new LargeButton(caption, pictures.Picture(picture), parent);
    SetUpButton(button, name, caption, keys, std::move(command));
    button->setToolTip(PlainTip(caption));
    return button;
  };
  buttons_ = {
      make("new", "207", kNew, {Qt::ALT | Qt::Key_N, Qt::CTRL | Qt::Key_N},
           [&editor] { editor.files.NewExam(); }),
      make("open", "208", kOpen, {Qt::ALT | Qt::Key_O, Qt::CTRL | Qt::Key_O},
           [&editor] { editor.files.OpenExam(); }),
      import_ = make("import", "227", kImportExam, {Qt::ALT | Qt::Key_I}, window.importExam),
      make("save", "211", kSave, {Qt::ALT | Qt::Key_S, Qt::CTRL | Qt::Key_S},
           [&editor] { editor.files.SaveExam(); }),
      make("saveAs", "212", kSaveAs, {Qt::ALT | Qt::Key_A, Qt::CTRL | Qt::SHIFT | Qt::Key_S},
           [&editor] { editor.files.SaveExamAs(); }),
      make("scoreSetup", "206", kScoreSettings, {Qt::ALT | Qt::Key_G}, window.scoreSetup),
      make("attachFiles", "226", kAttachFiles, {Qt::ALT | Qt::Key_H}, [&editor] { AttachToExam(editor); }),
      make("preview", "209", kPreview, {Qt::ALT | Qt::Key_V, Qt::Key_F5}, window.preview),
      make("print", "210", kPrint, {Qt::ALT | Qt::Key_P, Qt::CTRL | Qt::Key_P}, window.print),
  };
}

void ToolbarButtons::HideImport() {
  import_->setEnabled(false);
  import_->hide();
}

}  // namespace quorvantis
