// SPDX-License-Identifier: MIT
#include "taking/OtherExam.h"

#include "editor/WorkCopies.h"
#include "examfile/ExamFileMessages.h"
#include "examfile/ExamFileReader.h"
#include "examfile/WorkFolder.h"
#include "model/WorkFolderNames.h"
#include "platform/texts/OverviewTexts.h"
#include "taking/PrivateServices.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

/// Like the folders of work copies, it lies in the work root, which goes when the program ends.
fs::path FolderOf(const fs::path& workRoot, int number) {
  return workRoot / (std::string(kOtherExamFolder) + std::to_string(number));
}

}  // namespace

OtherExam::OtherExam(const ExamServices& services, const fs::path& workRoot, fs::path file, int number)
    : file_(std::move(file)),
      folder_(FolderOf(workRoot, number)),
      services_(PrivateServices(services, folder_, messages_, flags_)),
      exam_(services_) {
  MakeWorkRoot(workRoot);
  RemoveFolder(folder_);  // of a run that was killed
  exam_.SetHostMode(1);
  Read();
}

OtherExam::~OtherExam() {
  RemoveFolder(folder_);
}

void OtherExam::Read() {
  state_ = FileState::Of(file_);
  exam_.ReadExamFile(file_);
  problem_ = WhyNothing();
  if (!problem_.empty()) return;
  questionCount_ = exam_.LastCountedQuestion();
  passedOver_ = PassedOverText(services_.strings, exam_.lastRead->passedOver);
  const ExamReadOutcome& outcome = *exam_.lastRead;
  if (!outcome.endsEarly || outcome.firstMissingQuestion == 0) return;
  questionCount_ = std::min(questionCount_, outcome.firstMissingQuestion - 1);
  problem_ = FillMessage(Text(text_id::kTakenDamaged),
                         {PathToText(file_), FormatInteger(outcome.firstMissingQuestion)});
}

/// Empty if there is something to take.
std::u16string OtherExam::WhyNothing() const {
  if (!exam_.lastRead->opened) {
    return messages_.Errors().empty() ? FillMessage(Text(text_id::kTakenFileGone), {PathToText(file_)})
                                      : messages_.Errors().front();
  }
  if (exam_.readDoubt == ReadDoubt::NoExam)
    return FillMessage(Text(text_id::kTakenFileNoExam), {PathToText(file_)});
  if (exam_.LastCountedQuestion() == 0)
    return FillMessage(Text(text_id::kTakenFileEmpty), {PathToText(file_)});
  return {};
}

TakenQuestions OtherExam::Take(const std::vector<int>& numbers) const {
  TakenQuestions taken{ProblemOf(numbers)};
  if (!taken.problem.empty()) return taken;
  for (const int number : numbers) {
    taken.questions.push_back(WholeQuestionOf(exam_, flags_, number));
    ExamQuestion& question = taken.questions.back().question;
    taken.questions.back().longAnswer = IsLongAnswer(question.answerText);
  }
  return taken;
}

std::u16string OtherExam::ProblemOf(const std::vector<int>& numbers) const {
  const std::u16string name = PathToText(file_);
  if (questionCount_ == 0) return problem_;
  const std::optional<FileState> now = FileState::Of(file_);
  if (!now) return FillMessage(Text(text_id::kTakenFileGone), {name});
  if (now != state_) return FillMessage(Text(text_id::kTakenFileChanged), {name});
  for (const int number : numbers) {
    if (number < 1 || number > questionCount_) {
      if (!problem_.empty()) return problem_;
      return FillMessage(Text(text_id::kTakenNoSuchQuestion),
                         {name, FormatInteger(number), FormatInteger(questionCount_)});
    }
    const std::u16string missing = MissingFileOf(number);
    if (!missing.empty())
      return FillMessage(Text(text_id::kTakenFileNotUnpacked), {missing, FormatInteger(number)});
  }
  return {};
}

/// The display name of a file of the question that could not be unpacked.
std::u16string OtherExam::MissingFileOf(int number) const {
  const ExamQuestion& question = exam_.Question(number);
  for (std::size_t i = 0; i < kMaxAttachments; ++i) {
    const std::u16string& path = question.attachmentPaths[i];
    std::error_code ignored;
    if (path.empty() || exam_.pathsWithoutContent.contains(path)) continue;
    if (!fs::is_regular_file(TextToPath(path), ignored)) return question.attachmentNames[i];
  }
  return {};
}

}  // namespace quorvantis
