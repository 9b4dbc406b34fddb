// SPDX-License-Identifier: MIT
#include "examfile/ExamFileMessages.h"

#include "examfile/FileFailure.h"
#include "platform/UserDialogs.h"
#include "platform/texts/ProgramTexts.h"
#include "platform/texts/SavingTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

std::u16string EndsEarly(const StringTable& strings, int firstMissingQuestion) {
  if (firstMissingQuestion == 0) return strings.Text(text_id::kExamFilesEndEarly);
  return FillMessage(strings.Text(text_id::kExamEndsEarly), {FormatInteger(firstMissingQuestion)});
}

}  // namespace

std::u16string OpenFileError(const StringTable& strings, const std::filesystem::path& file) {
  return FillMessage(strings.Text(text_id::kOpenFileError), {PathToText(file)});
}

std::u16string OpenFileError(const StringTable& strings, const std::filesystem::path& file,
                             std::error_code why) {
  const std::u16string error = OpenFileError(strings, file);
  return why ? error + u'\n' + FileFailureText(strings, why) : error;
}

std::u16string PassedOverText(const StringTable& strings, const PassedOver& passedOver) {
  std::u16string parts;
  const auto add = [&](int count, int text, int question) {
    if (count == 0) return;
    const std::u16string part =
        FillMessage(strings.Text(text), {FormatInteger(count), FormatInteger(question)});
    parts = parts.empty() ? part : FillMessage(strings.Text(text_id::kPassedOverAnd), {parts, part});
  };
  add(passedOver.examFiles, text_id::kExamFilesPassedOver, 0);
  add(passedOver.questionFiles, text_id::kQuestionFilesPassedOver, passedOver.firstQuestion);
  add(passedOver.questions, text_id::kQuestionsPassedOver, kMaxQuestions);
  return parts.empty() ? parts : FillMessage(strings.Text(text_id::kPassedOver), {parts});
}

void ShowReadLosses(const ExamServices& services, const ExamReadOutcome& outcome) {
  // Once, however many files: they usually fail for one reason, such as a full disk or a missing folder.
  if (outcome.filesNotCreated > 0)
    services.dialogs.ShowWarning(services.strings.Text(text_id::kTemporaryFileError));
  if (outcome.endsEarly)
    services.dialogs.ShowWarning(EndsEarly(services.strings, outcome.firstMissingQuestion));
  if (outcome.passedOver.IsAnything())
    services.dialogs.ShowWarning(PassedOverText(services.strings, outcome.passedOver));
}

}  // namespace quorvantis
