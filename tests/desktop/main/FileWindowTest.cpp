// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace quorvantis::test {
namespace {

class FileWindow : public WindowTest {
 protected:
  void OpenChanged() {
    Open();
    Type("title", "Changed");
    Turn();
  }

  /// Drags files over a control and drops them where Qt delivers them: on the window, if the control does not
  /// accept them.
  void DropFiles(QWidget& over, std::initializer_list<std::filesystem::path> paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const auto& path : paths) urls << QUrl::fromLocalFile(PathToQString(path));
    data.setUrls(urls);
    data.setText("file names");
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&over, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&over, &drop);
    EXPECT_TRUE(drop.isAccepted());
    Turn();
  }
};

TEST_F(FileWindow, SavedAsAndOpenedAgainTheExamIsTheSame) {
  OpenChanged();
  Press("optionB", Qt::Key_A);
  world.dialogs.filesToSave.push_back(folder / "Mine.exm");
  Press("questionText", Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_FALSE(ShowsChange());
  EXPECT_TRUE(window->windowTitle().contains("Mine.exm"));

  Press("questionText", Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Line("title").text(), "");
  world.dialogs.filesToOpen.push_back(folder / "Mine.exm");
  Press("questionText", Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(Line("title").text(), "Changed");
  EXPECT_EQ(Lines("optionB").toPlainText(), "a");
}

TEST_F(FileWindow, ADroppedExamIsOpened) {
  const auto sample = folder / "Other.EXM";
  FrameSetExam other(world.services);
  other.title = u"Other";
  other.WriteExamFile(sample);
  const auto picture = MakeFile("picture.jpg");
  OpenChanged();
  world.dialogs.answers = {SaveAnswer::Cancel, SaveAnswer::No};
  DropFiles(*Lines("questionText").viewport(), {sample});
  EXPECT_EQ(Line("title").text(), "Changed");
  DropFiles(Line("title"), {picture, sample});
  EXPECT_EQ(Line("title").text(), "Other");
  EXPECT_EQ(Control<AttachmentListBox>("questionAttachments").count(), 0);
}

TEST_F(FileWindow, OtherDroppedFilesAreAttachedToTheQuestion) {
  const auto picture = MakeFile("picture.jpg");
  const auto sound = MakeFile("sound.wav");
  Open();
  DropFiles(Line("title"), {picture, folder.Path(), folder / "missing.txt", sound});
  EXPECT_EQ(exam.Question(1).attachmentNames[0], u"picture.jpg");
  EXPECT_EQ(exam.Question(1).attachmentNames[1], u"sound.wav");
  EXPECT_EQ(exam.Question(1).attachmentNames[2], u"");
}

}  // namespace
}  // namespace quorvantis::test
