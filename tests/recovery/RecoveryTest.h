// SPDX-License-Identifier: MIT
#pragma once

#include "../editor/EditorTest.h"
#include "editor/UnseenView.h"
#include "recovery/RecoveredExam.h"
#include "recovery/RecoveryFolder.h"
#include "recovery/RecoveryKeeper.h"

#include <map>
#include <optional>

namespace quorvantis::test {

/// An editor with a recovery keeper, and a second editor that takes over the same application folder.
class RecoveryTest : public EditorTest {
 protected:
  RecoveryTest() { keeper.Entered(); }

  /// The editor of one run of the program.
  struct Run {
    explicit Run(const std::filesystem::path& applicationFolder) : world(applicationFolder, files) {
      std::filesystem::create_directories(applicationFolder);
      exam.SetHostMode(1);
      editor.questions.LoadCurrentQuestion();
      keeper.Entered();
    }
    PosixFiles files;
    RecordingWorld world;
    FrameSetExam exam{world.services};
    UnseenView view;
    ExamEditor editor{exam, view, nullptr};
    RecoveryKeeper keeper{editor};
  };

  std::vector<RecoveryCopy> Copies() { return FindRecoveryCopies(world.services).copies; }

  /// Another run finds the copy and restores it.
  std::unique_ptr<Run> Restart(std::size_t copies = 1) {
    auto run = std::make_unique<Run>(world.services.applicationFolder);
    const auto found = FindRecoveryCopies(run->world.services);
    EXPECT_EQ(found.copies.size(), copies);
    EXPECT_TRUE(found.damaged.empty());
    if (found.copies.empty()) return run;
    const auto lost = RestoreExam(found.copies[0].folder, run->editor);
    EXPECT_EQ(lost, std::vector<std::u16string>());
    run->keeper.Restored(found.copies[0].folder);
    return run;
  }

  std::filesystem::path Attach(const char* name, std::string_view bytes, bool toExam = false) {
    const auto file = WriteBytes(folder / name, bytes);
    if (toExam) {
      editor.attachments.AttachExamFile(file);
    } else {
      editor.attachments.AttachQuestionFile(file);
    }
    return toExam ? exam.examAttachmentPaths[0] : editor.state.Current().attachmentPaths[0];
  }

  RecoveryKeeper keeper{editor};
};

}  // namespace quorvantis::test
