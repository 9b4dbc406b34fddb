// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/BankPageView.h"
#include "desktop/bank/BankQueryLine.h"
#include "desktop/bank/BankQuestionPane.h"
#include "desktop/bank/asked/BankElsewhereLine.h"
#include "desktop/bank/desk/BankDesk.h"
#include "desktop/bank/hits/BankHitsModel.h"
#include "desktop/bank/hits/BankHitsView.h"
#include "desktop/bank/hits/BankThumbnails.h"
#include "desktop/bank/tags/BankTagLine.h"
#include "shell/settings/WindowPlace.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <optional>

namespace quorvantis {

/// What the window of the bank asks the program to do with questions.
struct BankActions {
  /// Inserts them after that question of the exam, or after the one that is shown. Says what was done; empty
  /// if it was refused.
  BankHitsView::Inserts insert;
  /// Shows one as pupils see it.
  std::function<void(const BankQuestion&)> show;
  /// Opens its exam there.
  std::function<void(const BankQuestion&)> openExam;
  /// Makes what shows it as pupils see it within the window; empty if nothing can.
  BankPageView::Make makePage;
  /// Opens the window that draws from the bank.
  std::function<void()> draw;
  /// Tells what of the open exam was asked before.
  std::function<void()> showAskedBefore;
};

/// The bank of all exams, beside the main window: a line to search with, what was found, and the whole of the
/// question that is chosen. Closing the window hides it.
class BankWindow : public QDialog {
  Q_OBJECT

 public:
  /// `desk` and `services` must outlive the window. It belongs to `parent`, the main window.
  BankWindow(BankDesk& desk, const ExamServices& services, BankActions actions, QWidget* parent);
  ~BankWindow() override;

  /// Shows the window, or brings it to the front, and looks whether the folders have changed.
  void Appear();

  /// Chooses a question of the bank, and lists it first if it was not found.
  void Reveal(const BankUse& use);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QPushButton* MakeButton(const char* name, int text, void (BankWindow::*command)());
  void SetUpList();
  void PlaceControls();
  void Connect();
  void Search();
  void ShowHits();
  void ShowChosen();
  void ShowState();
  QString StateOfSearch() const;
  QString StateOfUpdate() const;
  QString Insert(const std::vector<BankQuestion>& questions, std::optional<int> after);
  void InsertChosen();
  void ShowPage();
  void OpenExam();
  void Draw() { actions_.draw(); }
  void EditFolders();
  void ShowAskedBefore() { actions_.showAskedBefore(); }
  const BankHit* Chosen() const;
  void RestorePlace();
  void KeepPlace() const;
  QString Text(int number) const;

  BankDesk& desk_;
  const StringTable& strings_;
  const BankActions actions_;
  WindowPlaceSetting place_;
  BankHitsModel model_;
  BankThumbnails thumbnails_;
  BankQueryLine* query_;
  BankHitsView* list_;
  BankQuestionPane* pane_;
  BankElsewhereLine* elsewhere_;
  BankTagLine* tags_;
  QLabel* status_;
  QPushButton* insert_;
  QPushButton* show_;
  QPushButton* openExam_;
  QPushButton* draw_;
  QPushButton* askedBefore_;
  QPushButton* folders_;
  QTimer whenQuiet_;  ///< runs while the user types
  QTimer whileUpdating_;
  QString told_;                     ///< of the last command
  std::int64_t kept_ = 0;            ///< the question that was chosen before the list changed
  std::optional<BankHit> revealed_;  ///< is listed until the user searches for something else
};

}  // namespace quorvantis
