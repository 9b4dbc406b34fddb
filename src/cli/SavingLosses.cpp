// SPDX-License-Identifier: MIT
#include "cli/SavingLosses.h"

#include "examfile/SavingLosses.h"
#include "platform/ExamServices.h"
#include "text/Utf.h"

namespace quorvantis::cli {

void TellSavingLosses(const Console& console, const std::filesystem::path& file, const FrameSetExam& exam) {
  for (const SavingLoss& loss : FindSavingLosses(exam))
    console.Complain(file.string() + ": " + Utf16ToUtf8(LossLine(loss, exam.Services().strings)));
}

}  // namespace quorvantis::cli
