// SPDX-License-Identifier: MIT
#include "shell/commands/ExportCommand.h"

#include "model/document/ExamServices.h"
#include "platform/Progress.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/ExportTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "shell/commands/ExportParagraphs.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <chrono>
#include <thread>

namespace quorvantis {
namespace {

constexpr std::chrono::milliseconds kForOfficeToEnd{100};

}  // namespace

/// Office programs that were asked to end get a moment to do so.
void ExportCommand::ExportWordDocument(const std::filesystem::path& target) {
  if (office_ != nullptr) {
    office_->processes.AskCloseOffice();
    std::this_thread::sleep_for(kForOfficeToEnd);
  }
  const ExamServices& services = exam_.Services();
  if (const auto failure = Write(target, WordFormat::Doc))
    services.dialogs.ShowError(*failure);
  else
    services.dialogs.ShowDone(services.strings.Text(text_id::kExported));
}

std::optional<std::u16string> ExportCommand::Write(const std::filesystem::path& target, WordFormat format) {
  const ExamServices& services = exam_.Services();
  const auto isCancelled = [&services] {
    services.progress.Wait();
    return services.progress.IsCancelled();
  };
  ExamPaper exam = exam_;
  exam.CountQuestions();
  const WordWriteOutcome outcome =
      writer_.Write({ExportParagraphs(exam, services.strings), target, format, isCancelled});
  if (outcome.result == WordWriteResult::Done) return std::nullopt;
  return FailureText(outcome, target);
}

std::u16string ExportCommand::FailureText(const WordWriteOutcome& outcome,
                                          const std::filesystem::path& target) const {
  const StringTable& strings = exam_.Services().strings;
  const auto textOf = [&](int id) { return FillMessage(strings.Text(id), {PathToText(target)}); };
  switch (outcome.result) {
    case WordWriteResult::WordProcessorMissing:
      return strings.Text(text_id::kNoWordProcessor);
    case WordWriteResult::TimedOut:
      return textOf(text_id::kExportTimedOut);
    case WordWriteResult::Cancelled:
      return textOf(text_id::kExportCancelled);
    case WordWriteResult::CannotWrite:
      return FillMessage(strings.Text(text_id::kCannotWrite),
                         {PathToText(outcome.place), Utf8ToUtf16(outcome.error.message())});
    default:
      return textOf(text_id::kCannotExport);
  }
}

}  // namespace quorvantis
