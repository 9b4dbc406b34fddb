// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/import/ImportSummaryDlg.h"
#include "desktop/import/ImportWaitDlg.h"
#include "import/ImportDialogs.h"
#include "model/document/ExamServices.h"
#include "platform/LanguageLibraries.h"

#include <QPointer>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace quorvantis {

/// The dialogs of an import, over the main window.
class ImportWindows : public ImportDialogs {
 public:
  /// All must outlive this. `language`, which may be null, has the texts of the dialogs.
  ImportWindows(ExamServices& services, const LanguageLibrary* language, QWidget& parent)
      : services_(services), language_(language), parent_(parent) {}

  /// What the summary offers to do with a paper of which little was recognised. Until then it offers nothing.
  void SetWorkOutRules(std::function<void(const std::filesystem::path& document)> workOutRules) {
    workOutRules_ = std::move(workOutRules);
  }

  /// The document whose rules the user would rather have worked out than choose; empty if they named none.
  /// Nothing if they chose a repository or gave up. Forgets it.
  std::optional<std::filesystem::path> TakeWish() { return std::exchange(wish_, std::nullopt); }

  /// Undoes the import, with the user's consent if needed.
  void Undo(ImportCommand& import);

  /// The exam has changed as a whole, so the summary may be out of date.
  void ExamChanged();

  ImportTarget AskTarget() override;
  bool AskDocument(ExamImport& import) override;
  ChoiceResult AskPictures() override;
  ChoiceResult AskFormulas() override;
  void ShowWait(const std::filesystem::path& document) override;
  void ShowPicturesRead(std::size_t done, std::size_t total) override;
  bool IsCancelled() override { return wait_ && wait_->IsCancelled(); }
  void HideWait() override { wait_.reset(); }
  void ShowNotice(std::u16string_view caption, std::u16string_view text) override;
  void ShowFailure(const ImportReport& report, std::u16string_view text) override;
  void ShowReport(const ImportReport& report, ImportCommand& import) override;

 private:
  ExamServices& services_;
  const LanguageLibrary* language_;
  QWidget& parent_;
  std::function<void(const std::filesystem::path&)> workOutRules_;
  std::unique_ptr<ImportWaitDlg> wait_;
  QPointer<ImportSummaryDlg> summary_;
  std::optional<std::filesystem::path> wish_;
};

}  // namespace quorvantis
