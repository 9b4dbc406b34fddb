// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/FittedCaption.h"
#include "desktop/controls/Pictures.h"
#include "desktop/import/ImportWindows.h"
#include "desktop/main/AnswerControls.h"
#include "desktop/main/ExamControls.h"
#include "desktop/main/QuestionArea.h"
#include "desktop/main/QuestionControls.h"
#include "desktop/main/ToolbarButtons.h"
#include "desktop/main/WarningNotice.h"
#include "desktop/main/WindowLayout.h"
#include "desktop/main/WindowScroll.h"
#include "import/ImportCommand.h"
#include "preview/PreviewWindows.h"
#include "scoring/SetupOwner.h"
#include "shell/session/EditorLife.h"
#include "shell/settings/CodePageChoice.h"

#include <QPushButton>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <filesystem>

namespace quorvantis {

/// The main window. It binds the controls to the editor, which has all the rules; the window only shows what
/// the editor tells. Escape ends it without a question, closing it asks about unsaved changes. When the
/// window goes, so do the work copies of attached files. As long as something is not saved, there is a
/// recovery copy of it.
class CQuorvantisDlg final : public FittedWindow,
                             private EditorView,
                             private PreviewOwner,
                             private SetupOwner {
  Q_OBJECT

 public:
  /// All must outlive the window: `exam`, the pages that its previews are composed into, the reader of the
  /// documents to import, `office`, and the library that dialogs and pictures are taken from. Without
  /// `office` office programs are left alone. Without a library, the pictures are the built-in ones.
  /// `languageId` is that of the wanted language, which previews are told.
  CQuorvantisDlg(FrameSetExam& exam, const ComposedPages& pages, WordDocuments& papers, OfficeControl* office,
                 DocumentExport exportDocument, const LanguageLibrary* library = nullptr,
                 int languageId = kEnglish);
  ~CQuorvantisDlg() override;

  /// Shows the first question and begins to keep recovery copies. The user may be asked before to close
  /// office programs. To be called once, before the window is shown.
  void Begin();

  /// Opens an exam file, a full path, as the Open command does, without a file dialog.
  void OpenExam(const std::filesystem::path& file) { editor_.files.OpenExam(file); }

  /// Offers what earlier runs did not save; to be called before anything else is done in the window. True
  /// when an exam has been restored.
  bool OfferRecovery();

  /// The exam in the window is that of `file`.
  bool Shows(const std::filesystem::path& file) const;

  /// Brings the recovery copy up to date.
  void KeepUnsavedWork() { life_.KeepUnsaved(); }

  /// Starts the browser, so that the first preview appears at once. Takes a moment: call it once the window
  /// has been painted.
  void WarmBrowser();

 signals:
  /// Both are handled by the window itself, once the event in hand is over.
  void ContentChangePosted();
  void FilesDropped(const QList<QUrl>& urls);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void FormLoaded() override;
  void FormChanged() override;
  void TitleChanged() override;
  void PostContentChanged() override;

  void PrefixAttachmentPaths(int on) override { editor_.changes.PrefixAttachmentPaths(on); }
  void PreviewFromSetup(int show) override;

  ToolbarButtons::WindowCommands Commands();
  WindowControls Controls();
  /// Gives every control its place.
  void Layout();
  void OfferImport();
  /// Has the recovery copy kept up to date, and tells when it cannot be.
  void KeepRecovery();
  void ScreenChanged();
  void EndUnasked();
  void ShowAbout();
  /// Discards the preview window and makes a new hidden one.
  void RenewPreviewWindow();
  void Preview();
  void Print();
  void SetUpScores();
  void TakeFiles(const QList<QUrl>& urls);

  const LanguageLibrary* library_;
  EditorLife life_;
  ExamEditor& editor_;
  const ExamServices& services_;
  QTimer recoveryTimer_;
  const int languageId_;
  PreviewWindows previews_;
  PreviewWindows::Window previewWindow_;  ///< null until the browser has started
  ImportWindows importWindows_;
  ImportCommand import_;
  Pictures pictures_;
  bool endsUnasked_ = false;
  ToolbarButtons toolbar_;
  ExamControls examControls_;
  QuestionArea* questionArea_;
  QuestionControls question_;
  AnswerControls answers_;
  WarningNotice* recoveryFails_;
  WindowScroll scroll_;
  QPushButton* cancel_;  ///< never seen, like the two below
  QPushButton* ok_;
  QPushButton* printAgain_;
};

}  // namespace quorvantis
