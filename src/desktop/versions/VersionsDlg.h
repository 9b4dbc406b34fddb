// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/BackgroundRun.h"
#include "desktop/versions/KeptParts.h"
#include "desktop/versions/PlanModel.h"
#include "desktop/versions/VersionChoices.h"
#include "desktop/versions/VersionsServices.h"
#include "model/ExamPaper.h"
#include "platform/StringTable.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

#include <atomic>
#include <filesystem>
#include <memory>

namespace quorvantis {

/// Makes shuffled versions of a saved exam: the teacher chooses how many and what moves, sees at once what
/// comes where and how much could be copied, and has them made. Escape ends the making first, then the
/// window.
class VersionsDlg : public QDialog {
  Q_OBJECT

 public:
  /// `exam` is what the file `examFile`, a full path, holds. `strings` must outlive the window, and so must
  /// whatever the services use.
  VersionsDlg(const ExamPaper& exam, std::filesystem::path examFile, VersionsServices program,
              const StringTable& strings, QWidget* parent);
  ~VersionsDlg() override;

  void reject() override;

  /// Shows or hides a line that says that something is wrong with the exam.
  void OfferCheck(bool isOffered);

 signals:
  /// The user wants to see what is wrong; this window has closed.
  void CheckWanted();

 private:
  QPushButton* MakeButton(const char* name, int text, void (VersionsDlg::*command)());
  QWidget* PlaceLeft();
  QWidget* PlaceRight();
  QLayout* PlaceFolder();
  QLayout* PlaceBottom();
  QWidget* MakeOffer();
  void SetUpPlan();

  /// Shows what was chosen when versions were made in the folder before.
  void TakeEarlierPlan();
  VersionRequest Chosen() const;
  void ShowPlan();
  void ChooseFolder();
  void OpenFolder();
  void LeaveForCheck();
  void Make();
  void TakeMade(const MadeVersions& made);
  void ShowRun();
  void Tell(const std::u16string& text);
  std::filesystem::path Folder() const;
  QString Text(int number) const;

  const ExamPaper exam_;
  const int questionCount_;
  const std::filesystem::path examFile_;
  VersionsServices program_;
  const StringTable& strings_;
  VersionChoices* choices_;
  KeptParts* kept_;
  PlanModel* model_;
  QTableView* plan_;
  QPlainTextEdit* report_;
  QLineEdit* folder_;
  QPushButton* chooseFolder_;
  QLabel* status_;
  QProgressBar* bar_;
  QPushButton* openFolder_;
  QPushButton* make_;
  QPushButton* close_;
  QWidget* offer_;
  QTimer whenChanged_;  ///< plans again after a pause in typing
  QTimer whileRunning_;
  std::shared_ptr<std::atomic_int> done_ = std::make_shared<std::atomic_int>(0);
  bool hasPlan_ = false;
  BackgroundRun run_;
};

}  // namespace quorvantis
