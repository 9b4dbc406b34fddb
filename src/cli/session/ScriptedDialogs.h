// SPDX-License-Identifier: MIT
#pragma once

#include "cli/console/Console.h"
#include "platform/UserDialogs.h"

#include <deque>

namespace quorvantis::cli {

/// The user of a command line: messages go to standard error, questions take the answers that a script has
/// prepared. A save question without an answer is cancelled, a file dialog without a file is closed, and
/// other programs are never closed: Yes/No questions get a No.
class ScriptedDialogs : public UserDialogs {
 public:
  explicit ScriptedDialogs(Console& console) : console_(console) {}

  void AnswerNextSaveQuestion(SaveAnswer answer) { saveAnswers_.push_back(answer); }
  bool HasSaveAnswer() const { return !saveAnswers_.empty(); }
  void ChooseNext(std::filesystem::path file) { nextFile_ = std::move(file); }

  /// Number of errors shown so far; warnings do not count.
  int ErrorCount() const { return errorCount_; }

  void ShowError(std::u16string_view text) override;
  void ShowWarning(std::u16string_view text) override;
  void ShowDone(std::u16string_view text) override;
  bool AskYesNo(std::u16string_view question) override;
  LossAnswer AskAboutLosses(const LossQuestion& question) override;
  SaveAnswer AskSave(std::u16string_view question) override;
  void BeginIn(const std::filesystem::path&) override {}
  std::optional<std::filesystem::path> ChooseFileToOpen(const FileDialogRequest& request) override;
  std::optional<std::filesystem::path> ChooseFileToSave(const FileDialogRequest& request) override;

 private:
  Console& console_;
  std::deque<SaveAnswer> saveAnswers_;
  std::optional<std::filesystem::path> nextFile_;
  int errorCount_ = 0;
};

}  // namespace quorvantis::cli
