// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankMemory.h"
#include "desktop/bank/desk/BankDesk.h"
#include "desktop/bank/desk/BankExamNames.h"
#include "desktop/controls/BackgroundRun.h"

#include <QLabel>
#include <QTimer>

#include <optional>
#include <vector>

namespace quorvantis {

/// Tells in which other exams a question of the bank stands, with links. Looked up on another thread once a
/// question has stayed for a moment, so that going through a list is not slowed down.
class BankElsewhereLine : public QLabel {
  Q_OBJECT

 public:
  /// `desk` must outlive the line.
  BankElsewhereLine(BankDesk& desk, QWidget* parent);
  ~BankElsewhereLine() override;

  /// Null for no question.
  void Show(const BankQuestion* question);

 signals:
  void UseChosen(const BankUse& use);
  /// The exam of the question is no longer as it was when the question was found.
  void Outdated();

 private:
  struct Found {
    BankQuestion question;
    bool isOutdated = false;
    std::optional<std::vector<BankUse>> uses;  ///< nothing if the index could not be read
  };

  static Found LookUp(const BankDesk& desk, KeptBankMemory& memory, const BankQuestion& question,
                      const BackgroundRun::Cancelled& isCancelled);
  void Look();
  void Take(Found found);
  QString Sentence(int text, bool isSame, std::size_t most) const;
  QString Link(std::size_t use) const;

  BankDesk& desk_;
  BackgroundRun run_;
  QTimer whenQuiet_;
  std::optional<BankQuestion> question_;
  bool isDue_ = false;  ///< another question is to be looked up after the one that is
  std::vector<BankUse> uses_;
  BankExamNames names_;  ///< of their exams
};

}  // namespace quorvantis
