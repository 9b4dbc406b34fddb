// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"

#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QMenu>
#include <QUrl>

namespace quorvantis::test {
namespace {

/// Replaces the desktop's programs.
class Opener : public QObject {
  Q_OBJECT

 public:
  QUrl opened;
 public slots:
  void Open(const QUrl& url) { opened = url; }
};

class AttachmentMenu : public WindowTest {
 protected:
  void Attach(const char* button, const char* file) {
    world.dialogs.filesToOpen.push_back(MakeFile(file));
    Click(button);
  }
  /// Chooses an entry of a list's menu; false if the entry is disabled.
  bool Choose(const char* list, const char* action) {
    auto& box = Control<AttachmentListBox>(list);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {2, 2}, box.mapToGlobal(QPoint(2, 2)));
    QCoreApplication::sendEvent(box.viewport(), &event);
    auto& menu = Control<QMenu>("attachmentMenu");
    auto* chosen = menu.findChild<QAction*>(action);
    const bool enabled = chosen != nullptr && chosen->isEnabled();
    if (enabled) chosen->trigger();
    menu.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return enabled;
  }
};

TEST_F(AttachmentMenu, TabSelectsTheOnlyEntryForIt) {
  Open();
  Attach("attachToQuestion", "one.jpg");
  auto& list = Control<AttachmentListBox>("questionAttachments");
  EXPECT_FALSE(Choose("questionAttachments", "removeAttachment"));
  Press("questionText", Qt::Key_Tab);
  ASSERT_TRUE(list.hasFocus());
  EXPECT_EQ(list.Selected(), 0U);
  EXPECT_TRUE(Choose("questionAttachments", "removeAttachment"));
  EXPECT_EQ(list.count(), 0);
}

TEST_F(AttachmentMenu, OpensOnlyFilesThatAreShown) {
  Opener opener;
  QDesktopServices::setUrlHandler("file", &opener, "Open");
  Open();
  for (const char* file : {"one.jpg", "two.jar", "three.html", "four.svg"}) Attach("attachFiles", file);
  auto& list = Control<AttachmentListBox>("examAttachments");
  list.setCurrentRow(0);
  EXPECT_TRUE(Choose("examAttachments", "openAttachment"));
  EXPECT_TRUE(opener.opened.toLocalFile().endsWith("one.jpg"));
  for (const int row : {1, 2, 3}) {
    list.setCurrentRow(row);
    EXPECT_FALSE(Choose("examAttachments", "openAttachment"));
  }
  QDesktopServices::unsetUrlHandler("file");
}

TEST_F(AttachmentMenu, SavesACopyOrSaysWhyNot) {
  Open();
  Attach("attachFiles", "one.jpg");
  Control<AttachmentListBox>("examAttachments").setCurrentRow(0);
  world.dialogs.filesToSave = {folder / "copy.jpg", folder / "missing" / "copy.jpg"};
  EXPECT_TRUE(Choose("examAttachments", "saveCopy"));
  EXPECT_EQ(world.dialogs.requests.back().initialName, u"one.jpg");
  EXPECT_EQ(ReadBytes(folder / "copy.jpg"), "content");
  EXPECT_TRUE(world.dialogs.errors.empty());
  EXPECT_TRUE(Choose("examAttachments", "saveCopy"));
  std::filesystem::remove_all(folder / "app" / "~TEMP");
  EXPECT_TRUE(Choose("examAttachments", "saveCopy"));
  EXPECT_TRUE(Choose("examAttachments", "openAttachment"));
  EXPECT_EQ(world.dialogs.errors.size(), 3U);
}

TEST_F(AttachmentMenu, IsToldOnceOfFilesWithoutContent) {
  Open();
  const std::filesystem::path gone = folder / "gone.jpg";
  for (const char* button : {"attachFiles", "attachToQuestion"}) {
    world.dialogs.filesToOpen.push_back(gone);
    Click(button);
    EXPECT_EQ(world.dialogs.warnings, std::vector{u"[1827 " + gone.u16string() + u"]"}) << button;
    world.dialogs.warnings.clear();
  }
  const auto copies = folder / "app" / "~TEMP";
  std::filesystem::remove_all(copies);
  WriteBytes(copies, "no folder, so nothing can be copied");
  emit window->FilesDropped(
      {QUrl::fromLocalFile(MakeFile("one.jpg").c_str()), QUrl::fromLocalFile(MakeFile("two.jpg").c_str())});
  Turn();
  EXPECT_EQ(world.dialogs.warnings.size(), 1U);
  std::filesystem::remove(copies);
  Attach("attachFiles", "two.jpg");
  EXPECT_EQ(world.dialogs.warnings.size(), 1U);
}

TEST_F(AttachmentMenu, AlwaysHasTheOralSwitchOfAnOralQuestion) {
  exam.Question(1).kind = QuestionKind::Oral;
  Open();
  Attach("attachToQuestion", "one.avi");
  EXPECT_FALSE(Control("oralToggle").isVisible());
  EXPECT_TRUE(Choose("questionAttachments", "switchOral"));
  EXPECT_EQ(exam.Question(1).oralFlag, 1);
  Click("kindChoice");
  EXPECT_FALSE(Choose("questionAttachments", "switchOral")) << "a choice question has none";
}

}  // namespace
}  // namespace quorvantis::test

#include "AttachmentMenuTest.moc"
