// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"

#include <QWidget>

#include <functional>

namespace quorvantis {

/// Shows a question of the bank as pupils see it. Who makes the window of the bank provides it. A browser
/// takes time and memory, so it has none until it first shows a question.
class BankPageView : public QWidget {
  Q_OBJECT

 public:
  using Make = std::function<BankPageView*(QWidget* parent)>;

  using QWidget::QWidget;
  ~BankPageView() override;

  /// Shows the question as its exam file holds it now, or says why that is not possible. Returns at once; a
  /// question that is asked for later comes instead.
  virtual void ShowQuestion(const BankQuestion& question) = 0;

  /// Shows nothing, and keeps no file of a question.
  virtual void ShowNothing() = 0;

 signals:
  /// Escape was pressed in the page.
  void Left();
};

}  // namespace quorvantis
