// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "recovery/RecoveredExam.h"
#include "support/TinyDisk.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

/// The application folder is on one disk that can be full, the exam on another.
class FullDiskWindow : public WindowTest {
 protected:
  void SetUp() override {
    if (!disk.Works() || !home.Works()) GTEST_SKIP() << "no disk can be mounted here";
    services.applicationFolder = home / "app";
    fs::create_directory(services.applicationFolder);
  }
  bool IsTold() { return Control("recoveryFails").isVisible(); }

  TinyDisk disk{4096};
  TinyDisk home{4096};
};

TEST_F(FullDiskWindow, AFailedSaveIsToldAndTheExamStays) {
  world.dialogs.filesToOpen = {WriteBytes(folder / "large.bin", std::string(200'000, 'x'))};
  const fs::path target = WriteBytes(disk / "mine.exm", "old");
  disk.Leave(100);
  Open();
  Click("attachToQuestion");
  Type("questionText", "typed");
  Turn();
  world.dialogs.filesToSave = {target, folder / "elsewhere.exm"};
  Click("save");
  EXPECT_EQ(world.dialogs.errors, std::vector{u"[102 " + target.u16string() + u"]\n[1133 %s]"});
  EXPECT_EQ(window->windowTitle(), "[107 UnTitle] *");
  EXPECT_EQ(ReadBytes(target), "old");
  EXPECT_EQ(std::distance(fs::directory_iterator(disk.Path()), fs::directory_iterator()), 1);
  Click("save");
  EXPECT_FALSE(ShowsChange());
  EXPECT_GT(fs::file_size(folder / "elsewhere.exm"), 200'000u);
}

TEST_F(FullDiskWindow, ARecoveryCopyThatCannotBeWrittenIsToldAsLongAsItCannot) {
  Open();
  const auto kept = [&] {
    const auto copies = FindRecoveryCopies(services).copies;
    return copies.empty() ? u"" : copies[0].title;
  };
  Type("title", "a");
  ASSERT_TRUE(QTest::qWaitFor([&] { return kept() == u"a"; }));
  home.Leave(0);
  Type("title", "b");
  ASSERT_TRUE(QTest::qWaitFor([&] { return IsTold(); }));
  EXPECT_EQ(kept(), u"a");
  EXPECT_EQ(Line("title").text(), "ab") << "and has kept nobody from typing";
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(Control("recoveryFails").toolTip().contains("recovery"));
  EXPECT_TRUE(window->childAt(Control("recoveryFails").geometry().center()) == &Control("recoveryFails"));
  home.Leave(1000);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !IsTold(); }));
  EXPECT_EQ(kept(), u"ab");
}

TEST_F(FullDiskWindow, WhatCouldNotBeCopiedOrUnpackedIsMarked) {
  const fs::path large = WriteBytes(folder / "large.bin", std::string(200'000, 'x'));
  world.dialogs.filesToOpen = {large, folder / "saved.exm", large};
  world.dialogs.filesToSave = {folder / "saved.exm"};
  Open();
  Click("attachToQuestion");
  Type("questionText", "typed");
  Click("save");
  home.Leave(100);
  Click("open");
  EXPECT_EQ(world.dialogs.warnings, std::vector<std::u16string>{u"[103 %s]"});
  Click("attachToQuestion");
  auto& list = Control<QListWidget>("questionAttachments");
  for (int i = 0; i < 2; ++i) EXPECT_FALSE(list.item(i)->icon().isNull()) << i;
  const std::string before = ReadBytes(folder / "saved.exm");
  world.dialogs.lossAnswer = LossAnswer::GoBack;
  Click("save");
  EXPECT_EQ(world.dialogs.losses.size(), 2u);
  EXPECT_EQ(ReadBytes(folder / "saved.exm"), before);
}

}  // namespace
}  // namespace quorvantis::test
