// SPDX-License-Identifier: MIT
#include "editor/UnseenView.h"
#include "platform/posix/LinuxProcessTable.h"
#include "platform/posix/PosixFiles.h"
#include "shell/session/CloseSequence.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"
#include "text/PathText.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

/// Files that report when one is about to be written.
class WatchedFiles : public PosixFiles {
 public:
  std::function<void()> onReplace = [] {};
  std::unique_ptr<PendingFile> Replace(const std::filesystem::path& target, std::error_code& error) override {
    onReplace();
    return PosixFiles::Replace(target, error);
  }
};

TEST(CloseSequence, DeletesAttachedFilesAndWhatAReaderUnpacked) {
  const TemporaryFolder folder;
  const auto unpacked = folder / "TEMP/ExamPreview/~tt";
  WatchedFiles files;
  RecordingWorld world(folder.Path(), files);
  FrameSetExam exam(world.services);
  const auto copy = [&](const char* name) { return PathToText(WriteBytes(unpacked / name, "x")); };
  const auto exists = [&](const char* name) { return std::filesystem::exists(unpacked / name); };
  exam.examAttachmentCopies[0] = copy("exam.doc");
  exam.Question(500).attachmentCopies = {copy("one"), copy("two"), u"", copy("behind the end")};
  exam.Question(1).attachmentPaths[0] = copy("not a copy to delete");
  WriteBytes(folder / "~TEMP/from/a.doc/a.doc", "attached");
  WriteBytes(folder / "~TEMP/5.bmp", "picture");
  const std::u16string locations = u"Software\\Microsoft\\Office\\12.0\\Excel\\Security\\Trusted Locations\\";
  world.registry.CreateKey(RegistryRoot::CurrentUser, locations + u"LocationQuorvantis");
  files.onReplace = [&] {
    EXPECT_FALSE(std::filesystem::exists(folder / "~TEMP")) << "before the trust ends";
  };

  LinuxProcessTable processes;
  OfficeControl office(world.services, processes);
  UnseenView view;
  ExamEditor editor(exam, view, nullptr);
  RunCloseSequence(editor, &office);
  EXPECT_EQ(world.registry.OpenKey(RegistryRoot::CurrentUser, locations + u"LocationQuorvantis"), nullptr);
  EXPECT_FALSE(std::filesystem::exists(folder / "~TEMP"));
  EXPECT_TRUE(exists("exam.doc") && exists("one") && exists("two")) << "no reader has made them";

  std::filesystem::create_directory_symlink(unpacked, folder / "~TEMP");
  exam.questionFilesUnpacked = 1;
  RunCloseSequence(editor, nullptr);
  EXPECT_FALSE(exists("one") || exists("two"));
  EXPECT_TRUE(exists("exam.doc") && exists("behind the end") && exists("not a copy to delete"));
  EXPECT_FALSE(std::filesystem::is_symlink(folder / "~TEMP"));
  exam.examFilesUnpacked = 1;
  RunCloseSequence(editor, nullptr);
  EXPECT_FALSE(exists("exam.doc"));
}

}  // namespace
}  // namespace quorvantis::test
