// SPDX-License-Identifier: MIT
#include "editor/SavingCheck.h"

#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/texts/SavingTexts.h"

namespace quorvantis {

void SavingCheck::ExamIsThatOf(const std::filesystem::path& file) {
  known_ = FileState::Of(file);
}

/// A file that no longer exists has nothing to lose.
std::vector<std::u16string> SavingCheck::LossesOfFile(const std::filesystem::path& file) const {
  std::vector<std::u16string> losses;
  const auto now = FileState::Of(file);
  if (!now || file != state_.FileName()) return losses;
  const StringTable& strings = state_.document.Services().strings;
  if (known_ && known_->file == file && known_ != now)
    losses.push_back(strings.Text(text_id::kChangedOnDisk));
  if (state_.document.readDoubt == ReadDoubt::ReadInPart)
    losses.push_back(strings.Text(text_id::kReadInPart));
  if (state_.document.readDoubt == ReadDoubt::PassedOver)
    losses.push_back(strings.Text(text_id::kPassedOverIsLost));
  if (state_.document.readDoubt == ReadDoubt::NoExam) losses.push_back(strings.Text(text_id::kNoExamFile));
  return losses;
}

LossAnswer SavingCheck::Ask(const std::filesystem::path& file, const std::vector<SavingLoss>& losses) const {
  const ExamServices& services = state_.document.Services();
  const StringTable& strings = services.strings;
  LossQuestion question{strings.Text(text_id::kSavingLoses),
                        LossesOfFile(file),
                        {},
                        strings.Text(text_id::kSaveAnyway),
                        strings.Text(text_id::kGoBack)};
  for (const SavingLoss& loss : losses) {
    if (!loss.isWork) continue;
    question.losses.push_back(LossLine(loss, strings));
    if (loss.canBeStored) question.storeWhole = strings.Text(text_id::kStoreWhole);
  }
  return question.losses.empty() ? LossAnswer::SaveAnyway : services.dialogs.AskAboutLosses(question);
}

}  // namespace quorvantis
