// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/BankPageView.h"
#include "desktop/controls/BackgroundRun.h"
#include "model/document/ExamServices.h"
#include "preview/PagePane.h"
#include "render/ComposedPages.h"
#include "taking/PeekedQuestion.h"

#include <QLabel>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace quorvantis {

/// What to tell when an exam no longer holds a question as the bank shows it.
std::u16string NoLongerSoText(const BankQuestion& question, const StringTable& strings);

/// Shows questions of the bank in a browser of its own. Each is read from its file on another thread; what is
/// asked for meanwhile waits, and only the last of it comes.
class BankPages : public BankPageView {
  Q_OBJECT

 public:
  /// `services` must outlive this. `takeNumber` gives another number each time, for folders in the work root.
  /// `languageIsRightToLeft`: of the texts of the program.
  BankPages(const ExamServices& services, std::function<int()> takeNumber, bool languageIsRightToLeft,
            QWidget* parent);
  ~BankPages() override;

  void ShowQuestion(const BankQuestion& question) override;
  void ShowNothing() override;

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  void Begin();
  void Take(const BankQuestion& question, std::shared_ptr<const PeekedQuestion> peeked);
  std::u16string WhyNot(const BankQuestion& question, const PeekedQuestion& peeked) const;
  PagePane& Pane();
  void GoOn(bool isForward);
  void ShowNotice(const std::u16string& text);

  const ExamServices& services_;
  const std::function<int()> takeNumber_;
  const bool languageIsRightToLeft_;
  ComposedPages pages_;
  PagePane* pane_ = nullptr;  ///< made with the first page
  QLabel* notice_;
  QTimer whileReading_;                          ///< until it is told that reading takes time
  std::optional<BankQuestion> wanted_;           ///< not begun yet
  std::shared_ptr<const PeekedQuestion> shown_;  ///< keeps the pictures of the page
  bool isWanted_ = false;                        ///< what is being read
  int shownPages_ = 0;
  BackgroundRun reading_;
};

}  // namespace quorvantis
