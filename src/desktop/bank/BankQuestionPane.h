// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"
#include "desktop/bank/BankPageView.h"
#include "model/document/ExamServices.h"
#include "shell/settings/BankViewSetting.h"

#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>

#include <optional>

namespace quorvantis {

/// The chosen question of the bank, in two ways: its whole text with the words that were looked for, and the
/// page that pupils see. Which one is remembered.
class BankQuestionPane : public QTabWidget {
  Q_OBJECT

 public:
  /// `services` must outlive the pane. Without `makePage` there is only the text.
  BankQuestionPane(const ExamServices& services, const BankPageView::Make& makePage, QWidget* parent);

  /// Shows the question, or nothing. The page follows when the user has stayed with the question for a
  /// moment.
  void Show(const BankHit* hit);

 signals:
  /// The user leaves the pane with Escape.
  void Left();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  bool IsPageChosen() const { return currentIndex() == kPageTab; }
  void ChooseView();
  void ShowPageSoon();
  void ShowPage();

  static constexpr int kPageTab = 1;

  const BankViewSetting setting_;
  QTextEdit* text_;
  BankPageView* page_ = nullptr;  ///< null without pages
  std::optional<BankQuestion> question_;
  QTimer whenStays_;  ///< runs while the user goes on to other questions
};

}  // namespace quorvantis
