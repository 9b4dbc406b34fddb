// SPDX-License-Identifier: MIT
#include "versions/folder/ReadExam.h"

#include "examfile/ExamFileMessages.h"
#include "examfile/SavingLosses.h"
#include "examfile/WorkFolder.h"
#include "platform/texts/VersionTexts.h"
#include "taking/PrivateServices.h"
#include "text/MessageText.h"
#include "text/PathText.h"

#include <system_error>
#include <utility>

namespace quorvantis {

ReadExam::ReadExam(const ExamServices& services, std::filesystem::path folder,
                   const std::filesystem::path& file)
    : file_(file),
      folder_(std::move(folder)),
      services_(PrivateServices(services, folder_, messages_, flags_)),
      exam_(services_) {
  RemoveFolder(folder_);
  std::error_code ignored;
  std::filesystem::create_directories(folder_, ignored);
  exam_.SetHostMode(1);
  exam_.ReadExamFile(file_);
  if (exam_.lastRead->opened) flags_.SetWhereNeeded(exam_);
}

ReadExam::~ReadExam() {
  RemoveFolder(folder_);
}

std::u16string ReadExam::Problem() const {
  const StringTable& strings = services_.strings;
  const ExamReadOutcome& outcome = *exam_.lastRead;
  if (!outcome.opened)
    return messages_.Errors().empty() ? OpenFileError(strings, file_) : messages_.Errors().front();
  const bool isDamaged =
      exam_.readDoubt != ReadDoubt::None || exam_.filesNotUnpacked > 0 || outcome.endsEarly;
  if (isDamaged) return FillMessage(strings.Text(text_id::kVersionsDamaged), {PathToText(file_)});
  for (const SavingLoss& loss : FindSavingLosses(exam_, flags_)) {
    if (loss.isWork)
      return FillMessage(strings.Text(text_id::kVersionsLoss), {PathToText(file_), LossLine(loss, strings)});
  }
  return {};
}

}  // namespace quorvantis
