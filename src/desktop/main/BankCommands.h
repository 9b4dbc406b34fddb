// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/AskedBeforeWindow.h"
#include "desktop/bank/BankDesk.h"
#include "desktop/bank/BankWindow.h"
#include "desktop/main/SheetCommands.h"
#include "desktop/overview/ShownQuestionCommands.h"
#include "platform/digest/OpenSslDigest.h"

#include <QPointer>

#include <memory>

namespace quorvantis {

/// The bank in the main window: opens its window, and does what that asks for.
class BankCommands {
 public:
  /// Discards the preview window and returns a new hidden one.
  using RenewPreview = std::function<PreviewWindow&()>;

  /// All must outlive this; `window`, the main window, owns the window of the bank. `languageIsRightToLeft`:
  /// of the texts of the program.
  BankCommands(ExamEditor& editor, ShownQuestionCommands& questions, bool languageIsRightToLeft,
               RenewPreview renewPreview, QWidget& window)
      : editor_(editor),
        questions_(questions),
        languageIsRightToLeft_(languageIsRightToLeft),
        renewPreview_(std::move(renewPreview)),
        window_(window) {}
  BankCommands(const BankCommands&) = delete;
  BankCommands& operator=(const BankCommands&) = delete;

  void Open();

  /// Shows a question as pupils see it.
  void Show(const BankQuestion& question);

  /// What the window of the bank does to draw from it; set it before that is opened.
  void SetDraw(std::function<void()> draw) { draw_ = std::move(draw); }

  /// Tells what of the open exam was asked before.
  void ShowAskedBefore();

  /// The open exam may have changed, or another one is shown.
  void ExamChanged();

 private:
  BankDesk& Desk();
  BankWindow& Window();
  QString Insert(const BankQuestion& question);
  void OpenExam(const BankQuestion& question);

  ExamEditor& editor_;
  ShownQuestionCommands& questions_;
  const bool languageIsRightToLeft_;
  const RenewPreview renewPreview_;
  QWidget& window_;
  std::function<void()> draw_;
  const OpenSslDigest digest_;
  std::unique_ptr<BankDesk> desk_;  ///< made when it is first needed
  QPointer<BankWindow> shown_;      ///< likewise
  QPointer<AskedBeforeWindow> askedBefore_;
};

}  // namespace quorvantis
