// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/FittedCaption.h"
#include "desktop/controls/Pictures.h"
#include "desktop/import/ImportWindows.h"
#include "desktop/main/WindowLayout.h"
#include "desktop/main/WindowMenus.h"
#include "desktop/main/WindowScroll.h"
#include "desktop/main/commands/BankCommands.h"
#include "desktop/main/commands/CheckCommands.h"
#include "desktop/main/commands/DrawCommands.h"
#include "desktop/main/commands/ExchangeCommands.h"
#include "desktop/main/commands/HistoryCommands.h"
#include "desktop/main/commands/PdfExport.h"
#include "desktop/main/commands/SearchCommands.h"
#include "desktop/main/commands/SheetCommands.h"
#include "desktop/main/commands/StudioCommands.h"
#include "desktop/main/commands/VersionCommands.h"
#include "desktop/main/controls/AnswerControls.h"
#include "desktop/main/controls/ExamControls.h"
#include "desktop/main/controls/QuestionArea.h"
#include "desktop/main/controls/QuestionControls.h"
#include "desktop/main/controls/ToolbarButtons.h"
#include "desktop/main/controls/WindowNotice.h"
#include "desktop/main/menu/FocusedField.h"
#include "desktop/main/menu/MenuBar.h"
#include "desktop/main/menu/OpenRecent.h"
#include "desktop/overview/ShownQuestionCommands.h"
#include "import/HeldPapers.h"
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

/// The main window: a menu bar above the client area with all controls. It connects them to the editor, which
/// has all the rules; the window only shows what the editor reports. Escape closes it without asking; closing
/// it in other ways asks about unsaved changes. When the window is destroyed, the work copies of attached
/// files are deleted. While there are unsaved changes, there is a recovery copy.
class CQuorvantisDlg final : public FittedWindow,
                             private EditorView,
                             private PreviewOwner,
                             private SetupOwner {
  Q_OBJECT

 public:
  /// All must outlive the window: `exam`, the pages that its previews are composed into, the reader of
  /// documents to import, `office`, and the library that provides dialogs and pictures. Without `office`,
  /// office programs are left alone. Without a library the built-in pictures are used. `languageId` is the
  /// language that the user wants; it is passed on to previews.
  CQuorvantisDlg(FrameSetExam& exam, const ComposedPages& pages, WordDocuments& papers, OfficeControl* office,
                 DocumentExport exportDocument, const LanguageLibrary* library = nullptr,
                 int languageId = kEnglish);
  ~CQuorvantisDlg() override;

  /// Shows the first question and starts keeping recovery copies. May first ask the user to close office
  /// programs. Call once, before the window is shown.
  void Begin();

  /// Opens an exam file, a full path, as the Open command does but without a file dialog.
  void OpenExam(const std::filesystem::path& file) { editor_.files.OpenExam(file); }

  /// Offers to restore unsaved work of earlier runs. Call before anything else is done in the window. True if
  /// an exam has been restored.
  bool OfferRecovery();

  /// The window shows the exam of `file`.
  bool Shows(const std::filesystem::path& file) const;

  /// From now on the exams that are opened and saved are kept in `exams`, which must outlive the window.
  void KeepRecent(const RecentExams& exams) { openRecent_.KeepIn(exams); }

  /// Updates the recovery copy.
  void KeepUnsavedWork() { life_.KeepUnsaved(); }

  /// Starts the browser, so that the first preview appears at once. Takes a moment: call once the window has
  /// been painted.
  void WarmBrowser();

 signals:
  /// The window handles both itself, after the current event.
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
  WindowMenus::Commands MenuCommands();
  /// Places the menu bar and the client area.
  void PlaceParts();
  /// Places every control.
  void Layout();
  void OfferImport();
  /// Keeps the recovery copy up to date, and warns when that fails.
  void KeepRecovery();
  void ScreenChanged();
  void EndUnasked();
  void ShowAbout();
  void ShowGuide();
  void ShowKeys();
  /// Discards the preview window and creates a new hidden one.
  void RenewPreviewWindow();
  void Preview();
  void Print();
  /// Loads the page out of sight and prints it.
  void PrintPage(const std::filesystem::path& page);
  /// Tells that a print is being prepared, as long as it is.
  void TellOfPrint();
  void ExportPdf();
  /// Creates a new preview window that prints to the chosen printer without asking; if empty, it asks.
  PreviewWindow& RenewFor(PagePrinter::AskForPrinter choose);
  void SetUpScores();
  void TakeFiles(const QList<QUrl>& urls);

  const LanguageLibrary* library_;
  EditorLife life_;
  ExamEditor& editor_;
  const ExamServices& services_;
  QTimer recoveryTimer_;
  const int languageId_;
  PdfExport pdf_;
  PreviewWindows previews_;
  PreviewWindows::Window previewWindow_;  ///< null until the browser has started
  ImportWindows importWindows_;
  HeldPapers papers_;
  ImportCommand import_;
  ShownQuestionCommands shownQuestion_;
  Pictures pictures_;
  bool endsUnasked_ = false;
  OpenRecent openRecent_;
  QWidget* client_;
  FocusedField focusedField_;
  ToolbarButtons toolbar_;
  ExamControls examControls_;
  QuestionArea* questionArea_;
  QuestionControls question_;
  AnswerControls answers_;
  HistoryCommands history_;
  SearchCommands search_;
  StudioCommands studio_;
  SheetCommands sheets_;
  VersionCommands versions_;
  ExchangeCommands exchange_;
  BankCommands bank_;
  DrawCommands draw_;
  WindowNotice* recoveryFails_;
  WindowNotice* somethingIsWrong_;
  WindowNotice* printComes_;
  CheckCommands check_;
  WindowScroll scroll_;
  QPushButton* cancel_;  ///< hidden, like the two below
  QPushButton* ok_;
  QPushButton* printAgain_;
  MenuBar* menuBar_;
};

}  // namespace quorvantis
