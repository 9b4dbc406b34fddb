// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "platform/documents/OfficeWordWriter.h"
#include "shell/commands/ExportCommand.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

using ExportWindow = WindowTest;

TEST_F(ExportWindow, WaitsUnderAModalBarUntilEscape) {
  const fs::path target = WriteBytes(folder / "Mine.doc", "old");
  const fs::path program = WriteBytes(folder / "soffice", "#!/bin/sh\nsleep 100");
  fs::permissions(program, fs::perms::owner_all);
  exportDocument = [&](const FrameSetExam& document, const fs::path& file) {
    OfficeWordWriter writer(files, {program, {}, std::chrono::minutes(1)});
    ExportCommand(document, writer, nullptr).ExportWordDocument(file);
  };
  Open();
  Type("title", "Changed");
  world.dialogs.filesToSave.push_back(target);
  QTimer timer;
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, [&] {
    auto* const bar = window->findChild<QDialog*>("waiting");
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QTest::keyClick(window->windowHandle(), Qt::Key_Escape);  // has no effect
    QTest::keyClick(bar, Qt::Key_Escape);
  });
  timer.start(200);
  Press("title", Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(window->windowTitle(), "[107 UnTitle] *");
  Turn();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(world.dialogs.errors.size(), 1U);
  EXPECT_EQ(ReadBytes(target), "old");
  EXPECT_FALSE(progress.IsCancelled()) << "the next work is another one";
}

}  // namespace
}  // namespace quorvantis::test
