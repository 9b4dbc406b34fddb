// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/bank/BankWindow.h"
#include "desktop/bank/asked/AskedBeforeWindow.h"
#include "desktop/bank/desk/BankDesk.h"
#include "desktop/main/commands/PdfExport.h"
#include "desktop/main/commands/SheetCommands.h"
#include "desktop/overview/ShownQuestionCommands.h"
#include "platform/digest/OpenSslDigest.h"

#include <QPointer>

#include <memory>
#include <optional>

namespace quorvantis {

/// The bank in the main window: opens its window, and does what that asks for.
class BankCommands {
 public:
  /// All must outlive this; `window`, the main window, owns the window of the bank. `languageIsRightToLeft`:
  /// of the texts of the program.
  BankCommands(ExamEditor& editor, ShownQuestionCommands& questions, PdfExport& pdf,
               bool languageIsRightToLeft, SheetCommands::Previews previews, QWidget& window)
      : editor_(editor),
        questions_(questions),
        pdf_(pdf),
        languageIsRightToLeft_(languageIsRightToLeft),
        previews_(std::move(previews)),
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
  /// Uses the page of a question while its files exist.
  using UsePage = std::function<void(const std::filesystem::path& page)>;

  BankDesk& Desk();
  BankWindow& Window();
  BankActions Actions();
  QString Insert(const std::vector<BankQuestion>& questions, std::optional<int> after);
  void Obey(PreviewWindow& window, const BankQuestion& question, const QString& wish);
  void SavePdf(const BankQuestion& question);
  void WithPage(const BankQuestion& question, const UsePage& use);
  void OpenExam(const BankQuestion& question);
  bool IsOpen(const std::filesystem::path& file) const;
  std::optional<int> PlaceOf(const BankQuestion& question) const;
  void TellChanged(const BankQuestion& question) const;
  const ExamServices& Services() const { return editor_.state.document.Services(); }

  ExamEditor& editor_;
  ShownQuestionCommands& questions_;
  PdfExport& pdf_;
  const bool languageIsRightToLeft_;
  const SheetCommands::Previews previews_;
  QWidget& window_;
  std::function<void()> draw_;
  const OpenSslDigest digest_;
  std::unique_ptr<BankDesk> desk_;  ///< made when it is first needed
  QPointer<BankWindow> shown_;      ///< likewise
  QPointer<AskedBeforeWindow> askedBefore_;
};

}  // namespace quorvantis
