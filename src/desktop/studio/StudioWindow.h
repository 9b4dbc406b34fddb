// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/BackgroundRun.h"
#include "desktop/studio/SideBySide.h"
#include "desktop/studio/StudioControls.h"
#include "desktop/studio/StudioServices.h"
#include "learn/PaperStudy.h"
#include "model/document/ExamServices.h"
#include "shell/settings/WindowPlace.h"

#include <QTimer>
#include <QWidget>

#include <filesystem>
#include <memory>
#include <optional>

namespace quorvantis {

/// The window in which a paper becomes questions: it shows a paper coloured by what was understood, beside
/// the questions that result, takes what the teacher says of parts of it, and imports. It asks the program to
/// do things and holds nothing of the exam. Everything that takes time runs on another thread.
class StudioWindow : public QWidget {
  Q_OBJECT

 public:
  /// `services` must outlive the window, which belongs to `parent`, the main window.
  StudioWindow(const ExamServices& services, StudioServices program, QWidget* parent);
  ~StudioWindow() override;

  /// Shows the window, or brings it to the front.
  void Open();
  /// The same with a paper, unless the user keeps the marks of another one.
  void OpenPaper(const std::filesystem::path& paper);

  /// The exam may have changed.
  void ExamChanged();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  struct WantedPaper {
    std::filesystem::path file;
    std::optional<ImportSettings> rules{};  ///< tried on the paper instead of being worked out
    std::filesystem::file_time_type time{};
  };

  void Connect();
  void AddKey(const QKeySequence& keys, void (StudioWindow::*command)());
  void ChoosePaper();
  void PastePaper();
  bool MayLeavePaper();
  void ReadPaper(WantedPaper wanted);
  void TakePaper(PaperFile file, const WantedPaper& wanted);
  void Leave();

  void Mark(PaperRole role);
  void TakeBackHere();
  void TakeBack(std::size_t index);
  void UndoMark();
  void RedoMark();
  void RulesEdited(int rule);
  void TryEdited();

  /// Works out what the present state of the study leads to.
  void WorkOut();
  void TakeOutcome(StudyOutcome outcome);
  /// Works out why marks are not followed, which takes longer.
  void ExplainMarks();
  void TakeReasons(std::vector<UnfollowedMark> reasons);
  void ShowStudy();
  void ShowTarget();
  void ShowMenu(const QPoint& position);
  void EnableControls();
  void Tell(int text);
  void TakeKeyboard();

  void ImportQuestions();
  void SaveRules();
  ImportSettings RulesToUse() const;
  int Questions() const;

  void RestorePlace();
  void KeepPlace() const;

  const ExamServices& services_;
  const StringTable& strings_;
  StudioServices program_;
  WindowPlaceSetting place_;
  StudioControls controls_;
  SideBySide sides_;
  std::filesystem::path paper_;
  std::filesystem::file_time_type paperTime_;  ///< when the file that was read had been changed
  std::unique_ptr<PaperStudy> study_;          ///< null without a paper
  QTimer whenTyped_;                           ///< tries edited rules after a pause in typing
  QTimer whenChanged_;                         ///< looks at the exam once the current event has been handled
  bool isImporting_ = false;
  bool hasRoom_ = false;                 ///< the exam has room for a question
  int tellThen_ = 0;                     ///< number of the text to show once the outcome is there; 0 for none
  int typedRule_ = RulesPanel::kNoRule;  ///< that is being typed and has not been tried
  int triedRule_ = RulesPanel::kNoRule;  ///< that the last outcome has tried
  std::optional<std::vector<UnfollowedMark>> reasons_;
  BackgroundRun run_;
  BackgroundRun reasonsRun_;
};

}  // namespace quorvantis
