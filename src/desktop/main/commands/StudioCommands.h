// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/import/ImportWindows.h"
#include "desktop/studio/StudioWindow.h"
#include "editor/ExamEditor.h"
#include "import/HeldPapers.h"
#include "import/ImportCommand.h"

#include <QPointer>
#include <QWidget>

namespace quorvantis {

/// The window for papers in the main window: the commands that open it, and what it asks for.
class StudioCommands {
 public:
  /// All must outlive this object; `window` owns the window for papers. `papers` is what `import` reads. The
  /// dialogs of an import offer the window from now on.
  StudioCommands(ExamEditor& editor, ImportCommand& import, ImportWindows& dialogs, HeldPapers& papers,
                 QWidget& window)
      : editor_(editor), import_(import), papers_(papers), window_(window) {
    dialogs.SetWorkOutRules([this](const std::filesystem::path& paper) { WorkOutRules(paper); });
  }
  StudioCommands(const StudioCommands&) = delete;
  StudioCommands& operator=(const StudioCommands&) = delete;

  /// Lets the user choose a paper and shows what it becomes. If they choose none, the window opens empty: a
  /// paper can also be pasted there.
  void ImportPaper();

  /// Shows what `paper` becomes; asks for one if it is empty.
  void WorkOutRules(const std::filesystem::path& paper);

  /// The exam may have changed, or another one is shown.
  void ExamChanged() {
    if (studio_ != nullptr) studio_->ExamChanged();
  }

  /// The studio goes with the main window.
  void MainWindowCloses();

 private:
  StudioWindow& Window();
  StudioServices Services();
  std::optional<std::filesystem::path> ChoosePaper();
  std::filesystem::path HoldText(std::u16string text);
  ExamPaper Exam() const;
  bool Import(const StudioImport& wanted);
  /// Shows the last question, behind which the questions go, and says where they go from there.
  ImportPlace GoToPlace(const ImportWish& wish);
  std::optional<std::u16string> SaveRules(const Repository& rules, std::filesystem::path& file);

  ExamEditor& editor_;
  ImportCommand& import_;
  HeldPapers& papers_;
  QWidget& window_;
  QPointer<StudioWindow> studio_;  ///< made when it is first needed
};

}  // namespace quorvantis
