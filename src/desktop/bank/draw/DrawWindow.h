// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankPlace.h"
#include "desktop/bank/draw/DrawConditionFields.h"
#include "desktop/bank/draw/DrawRun.h"
#include "desktop/bank/draw/DrawWishFields.h"
#include "desktop/bank/draw/DrawnPane.h"
#include "desktop/controls/BackgroundRun.h"
#include "desktop/controls/RunBar.h"
#include "model/document/ExamServices.h"
#include "shell/settings/DrawSetting.h"
#include "shell/settings/WindowPlace.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <functional>
#include <memory>
#include <set>
#include <vector>

namespace quorvantis {

/// What became of drawn questions that were to be inserted.
struct DrawnInsertion {
  QString told;                ///< what was done; empty if nothing was
  std::set<std::size_t> gone;  ///< places of those that their exams no longer hold
  bool isRefused = false;      ///< all of them, which the user has been told
};

/// What the window asks the program to do.
struct DrawActions {
  /// Inserts questions after the one that is shown, in this order.
  std::function<DrawnInsertion(const std::vector<BankQuestion>&)> insert;
  /// Shows one as pupils see it.
  std::function<void(const BankQuestion&)> show;
  /// The open exam as it is now.
  std::function<std::shared_ptr<const FrameSetExam>()> openExam;
};

/// Draws questions from the bank, beside the main window: wishes and conditions above, the list of what came
/// below, which can be arranged before it is inserted. Remembers what was typed. Closing the window hides it,
/// with its list.
class DrawWindow : public QDialog {
  Q_OBJECT

 public:
  /// `services` and `digest` must outlive the window. It belongs to `parent`, the main window.
  DrawWindow(BankPlace place, const ExamServices& services, const FileDigest& digest, DrawActions actions,
             QWidget* parent);
  ~DrawWindow() override;

  /// Shows the window, or brings it to the front.
  void Appear();

  /// Ends what is being drawn, otherwise closes.
  void reject() override;

 protected:
  bool event(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  QPushButton* MakeButton(const char* name, int text);
  void PlaceControls();
  void Connect();
  void LookForChoices();
  void Offer(const DrawChoices& choices);
  TypedDraw Typed() const;
  void Draw();
  void TakeDrawn(DrawRun run);
  /// Why a draw gave no list, for the user; empty if it did.
  std::u16string WhyNoList(const DrawRun& run) const;
  void Exchange();
  void TakeExchanged(std::size_t place, const AnotherDrawn& other);
  void ShowPage();
  void Insert();
  void ListArranged();
  void ShowRun();
  void Tell(const std::u16string& text);
  void RestorePlace();
  void Keep() const;
  QString Text(int number) const;

  const BankPlace place_;
  const ExamServices& services_;
  const FileDigest& digest_;
  const StringTable& strings_;
  const DrawActions actions_;
  DrawSetting setting_;
  WindowPlaceSetting windowPlace_;
  BackgroundRun run_;
  BackgroundRun look_;  ///< for what can be chosen
  DrawWishFields* wishes_;
  DrawConditionFields* conditions_;
  QPushButton* draw_;
  QPushButton* cancel_;
  RunBar* bar_;
  QLabel* status_;
  DrawnPane* pane_;
  DrawChoices offered_;
};

}  // namespace quorvantis
