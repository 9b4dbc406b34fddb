// SPDX-License-Identifier: MIT
#include "desktop/main/FileButtons.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/Texts.h"

namespace quorvantis {
namespace {

constexpr std::size_t kImport = 2;

struct FileButtonSpec {
  const char* name;
  const char* picture;
  int text;
  Keys keys;
  std::function<void()> command;
};

}  // namespace

FileButtons::FileButtons(ExamEditor& editor, const PageCommands& pages, const StringTable& strings,
                         const Pictures& pictures, QWidget* parent) {
  using namespace text_id;
  const FileButtonSpec specs[kCount] = {
      {"new",
       "207",
       kNew,
       {Qt::ALT | Qt::Key_N, Qt::CTRL | Qt::Key_N},
       [&editor] { editor.files.NewExam(); }},
      {"open",
       "208",
       kOpen,
       {Qt::ALT | Qt::Key_O, Qt::CTRL | Qt::Key_O},
       [&editor] { editor.files.OpenExam(); }},
      {"import", "227", kImportExam, {Qt::ALT | Qt::Key_I}, pages.importExam},
      {"save",
       "211",
       kSave,
       {Qt::ALT | Qt::Key_S, Qt::CTRL | Qt::Key_S},
       [&editor] { editor.files.SaveExam(); }},
      {"saveAs",
       "212",
       kSaveAs,
       {Qt::ALT | Qt::Key_A, Qt::CTRL | Qt::SHIFT | Qt::Key_S},
       [&editor] { editor.files.SaveExamAs(); }},
      {"scoreSetup", "206", kScoreSettings, {Qt::ALT | Qt::Key_G}, pages.scoreSetup},
      {"attachFiles",
       "226",
       kAttachFiles,
       {Qt::ALT | Qt::Key_H},
       [&editor] { editor.attachments.AttachExamFile(); }},
      {"preview", "209", kPreview, {Qt::ALT | Qt::Key_V, Qt::Key_F5}, pages.preview},
      {"print", "210", kPrint, {Qt::ALT | Qt::Key_P, Qt::CTRL | Qt::Key_P}, pages.print},
  };
  for (std::size_t i = 0; i < kCount; ++i) {
    const FileButtonSpec& spec = specs[i];
    const QString caption = ToQString(strings.Text(spec.text));
    buttons_[i] = new LargeButton(caption, pictures.Picture(spec.picture), parent);
    SetUpButton(buttons_[i], spec.name, caption, spec.keys, spec.command);
  }
}

void FileButtons::HideImport() {
  buttons_[kImport]->setEnabled(false);
  buttons_[kImport]->hide();
}

}  // namespace quorvantis
