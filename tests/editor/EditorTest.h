// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ExamEditor.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <utility>

namespace quorvantis::test {

/// An editor without a window; a test can fill the exam. Show() shows its question 1.
class EditorTest : public testing::Test, protected EditorView {
 protected:
  EditorTest() {
    std::filesystem::create_directories(world.services.applicationFolder);
    exam.SetHostMode(1);
    Show();
  }

  void Show() { editor.questions.LoadCurrentQuestion(); }
  void ShowQuestion(int number) { editor.questions.ShowQuestion(number); }

  bool Type(FormField field, std::u16string text) {
    return editor.questions.EditField(field, std::move(text));
  }

  /// The window's event loop runs once.
  void Turn() {
    if (std::exchange(posted, false)) editor.state.DeliverContentChanged();
  }
  void Change() {
    Type(FormField::Text, u"changed");
    Turn();
  }
  bool Modified() const { return editor.state.Modified(); }

  void SaveAs(const std::filesystem::path& file) {
    world.dialogs.filesToSave.push_back(file);
    editor.files.SaveExamAs();
  }
  void Open(const std::filesystem::path& file) {
    world.dialogs.filesToOpen.push_back(file);
    editor.files.OpenExam();
  }

  TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world{folder / "app", files};
  FrameSetExam exam{world.services};
  std::vector<std::filesystem::path> exported;
  ExamEditor editor{exam, *this, [this](const FrameSetExam&, const auto& file) { exported.push_back(file); }};

  int loads = 0;
  bool posted = false;
  std::u16string title;  ///< as the window would show it

 private:
  void FormLoaded() override { ++loads; }
  void FormChanged() override {}
  void TitleChanged() override { title = editor.state.WindowTitle(); }
  void PostContentChanged() override { posted = true; }
};

inline std::u16string AsText(const std::filesystem::path& path) {
  return path.u16string();
}

}  // namespace quorvantis::test
