// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/AttachmentListBox.h"
#include "desktop/controls/QtText.h"
#include "desktop/dialogs/QtProgress.h"
#include "desktop/main/CQuorvantisDlg.h"
#include "import/PaperDocuments.h"
#include "platform/documents/OfficeWordDocuments.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace quorvantis::test {

/// The real window, with scripted dialogs. A test can fill the exam before it opens the window.
class WindowTest : public testing::Test {
 protected:
  void Open() {
    std::filesystem::create_directories(world.services.applicationFolder);
    window = std::make_unique<CQuorvantisDlg>(exam, pages, papers, office, exportDocument);
    window->Begin();
    progress.SetParent(window.get());
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }

  template <class T = QWidget>
  T& Control(const char* name) {
    T* control = window->findChild<T*>(name);
    if (control == nullptr) throw std::runtime_error(name);
    return *control;
  }
  /// The part of the window below the menu bar.
  QWidget& Area() { return Control("clientArea"); }
  void ResizeArea(const QSize& size) { window->resize(size + window->size() - Area().size()); }
  OneLineField& Line(const char* name) { return Control<OneLineField>(name); }
  MultiLineField& Lines(const char* name) { return Control<MultiLineField>(name); }

  void Click(const char* name) { QTest::mouseClick(&Control<QAbstractButton>(name), Qt::LeftButton); }
  void Type(const char* name, const QString& text) {
    Control(name).setFocus();
    QTest::keyClicks(&Control(name), text);
  }
  void Press(const char* name, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Control(name).setFocus();
    QTest::keyClick(&Control(name), key, modifiers);
  }

  /// Clicks a button that opens a dialog, and runs `use` while the dialog is open.
  void ClickAndUse(const char* name, const std::function<void(QDialog&)>& use) {
    const auto useDialog = [&] {
      auto* dialog = window->findChild<QDialog*>();
      ASSERT_NE(dialog, nullptr);
      ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
      use(*dialog);
    };
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, useDialog);
    timer.start(0);
    Click(name);
  }

  /// The entry of a menu, as it is when its menu opens.
  QAction& Entry(const char* name) {
    for (auto* menu : window->findChildren<QMenu*>()) emit menu->aboutToShow();
    return Control<QAction>(name);
  }

  /// Runs the event loop once.
  void Turn() { QCoreApplication::processEvents(); }
  bool ShowsChange() { return window->windowTitle().endsWith(" *"); }
  std::filesystem::path MakeFile(const char* name) { return WriteBytes(folder / name, "content"); }

  TemporaryFolder folder;
  PosixFiles files;
  QtProgress progress;
  ComposedPages pages;
  RecordingWorld world{folder.Path() / "app", files, pages, progress};
  ExamServices& services = world.services;
  FrameSetExam exam{services};
  OfficeWordDocuments documents;
  PaperDocuments papers{services.codePage, documents};
  OfficeControl* office = nullptr;
  DocumentExport exportDocument;
  std::unique_ptr<CQuorvantisDlg> window;
};

}  // namespace quorvantis::test
