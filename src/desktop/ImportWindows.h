// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ExamServices.h"
#include "shell/ImportCommand.h"

#include <QDialog>
#include <QPointer>

namespace quorvantis {

/// The dialogs of an import, over the main window.
class ImportWindows : public ImportDialogs {
 public:
  /// Both must outlive this.
  ImportWindows(ExamServices& services, QWidget& parent) : services_(services), parent_(parent) {}

  ImportTarget AskTarget() override;
  bool AskDocument(ExamImport& import) override;
  ChoiceResult AskPictures() override;
  ChoiceResult AskFormulas() override;
  void ShowWait() override;
  void HideWait() override;
  void ShowFailure(std::u16string_view text) override;
  void ShowReport(const ImportReport& report) override;

 private:
  ExamServices& services_;
  QWidget& parent_;
  QPointer<QDialog> wait_;
};

}  // namespace quorvantis
