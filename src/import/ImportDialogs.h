// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>

namespace quorvantis {

class ExamImport;
class ImportCommand;
struct ImportReport;

/// Where imported questions go.
enum class ImportTarget { Continue, NewExam };

/// What to do with content that an exam cannot show. None if the dialog is closed in any other way.
enum class ChoiceResult { None = 0, GiveUp = 1, IgnoreRelated = 2, Force = 3 };

/// The dialogs of an import. Each waits for the user, except the wait window and the report.
class ImportDialogs {
 public:
  virtual ~ImportDialogs() = default;

  virtual ImportTarget AskTarget() = 0;
  /// Lets the user choose a document and a repository; true once they have been accepted.
  virtual bool AskDocument(ExamImport& import) = 0;
  virtual ChoiceResult AskPictures() = 0;
  virtual ChoiceResult AskFormulas() = 0;

  virtual void ShowWait(const std::filesystem::path& document) = 0;
  /// Reports how many of the document's pictures have been read.
  virtual void ShowPicturesRead(std::size_t done, std::size_t total) = 0;
  /// Whether the user has cancelled. Called often while the wait window is shown; it may paint.
  virtual bool IsCancelled() = 0;
  virtual void HideWait() = 0;

  /// A message with its own caption.
  virtual void ShowNotice(std::u16string_view caption, std::u16string_view text) = 0;
  /// Nothing was imported; one line that says why. The report holds what was read until then.
  virtual void ShowFailure(const ImportReport& report, std::u16string_view text) = 0;
  /// The import is over and may have changed the exam. `import`, which outlives the report, can undo it.
  virtual void ShowReport(const ImportReport& report, ImportCommand& import) = 0;
};

}  // namespace quorvantis
