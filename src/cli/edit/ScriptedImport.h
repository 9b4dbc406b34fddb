// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"
#include "import/ImportCommand.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis::cli {

/// The answers of a command line or script to the questions of an import. A dialog without an answer counts
/// as closed, which makes a new exam and leaves pictures and formulas unchanged.
struct ImportAnswers {
  std::filesystem::path document;
  std::u16string repository;              ///< the beginning of its name, or "#" and the number of its section
  std::optional<ImportSettings> rules{};  ///< instead of a repository's
  ImportTarget target = ImportTarget::NewExam;
  ChoiceResult pictures = ChoiceResult::None;
  ChoiceResult formulas = ChoiceResult::None;
};

/// "give-up", "ignore" or "force"; an empty word is None. Throws CommandError for others.
ChoiceResult ChoiceNamed(std::string_view word);

/// The dialogs of an import, with prepared answers.
class ScriptedImport : public ImportDialogs {
 public:
  /// `console`, which gets the messages, must outlive this.
  explicit ScriptedImport(Console& console) : console_(console) {}

  void Prepare(ImportAnswers answers);

  /// Why there was no import, if it was for the document or the rules, as a CommandError.
  void ThrowIfRefused() const;
  const ImportReport& Report() const { return report_; }

  ImportTarget AskTarget() override { return answers_.target; }
  bool AskDocument(ExamImport& import) override;
  ChoiceResult AskPictures() override { return answers_.pictures; }
  ChoiceResult AskFormulas() override { return answers_.formulas; }
  void ShowWait(const std::filesystem::path&) override {}
  void ShowPicturesRead(std::size_t, std::size_t) override {}
  bool IsCancelled() override { return false; }
  void HideWait() override {}
  void ShowNotice(std::u16string_view caption, std::u16string_view text) override;
  void ShowFailure(const ImportReport& report, std::u16string_view text) override;
  void ShowReport(const ImportReport& report, ImportCommand&) override { report_ = report; }

 private:
  Console& console_;
  ImportAnswers answers_;
  std::string refusal_;
  ImportReport report_;
};

}  // namespace quorvantis::cli
