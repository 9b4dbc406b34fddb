// SPDX-License-Identifier: MIT
#include "cli/session/LossMessages.h"

#include "examfile/SavingLosses.h"
#include "model/document/ExamServices.h"
#include "text/Utf.h"

namespace quorvantis::cli {

void TellSavingLosses(const Console& console, const std::filesystem::path& file, const FrameSetExam& exam) {
  const ExamServices& services = exam.Services();
  for (const SavingLoss& loss : FindSavingLosses(exam, services.longAnswerFlags))
    console.Complain(file.string() + ": " + Utf16ToUtf8(LossLine(loss, services.strings)));
}

}  // namespace quorvantis::cli
