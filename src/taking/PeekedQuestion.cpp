// SPDX-License-Identifier: MIT
#include "taking/PeekedQuestion.h"

#include "editor/WorkCopies.h"
#include "examfile/ExamFileReader.h"
#include "examfile/PickedFiles.h"
#include "examfile/WorkFolder.h"
#include "model/FileKinds.h"
#include "taking/PrivateServices.h"
#include "text/PathText.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

bool IsPicture(const std::u16string& name) {
  return FileKindOf(ExtensionOrNothing(name)).kind == FileKind::Picture;
}

}  // namespace

PeekedQuestion::PeekedQuestion(const ExamServices& services, std::filesystem::path folder,
                               const std::filesystem::path& file, int number)
    : folder_(std::move(folder)),
      number_(number),
      services_(PrivateServices(services, services.applicationFolder, messages_, flags_)),
      exam_(services_) {
  RemoveFolder(folder_);  // of a run that was killed
  Read(file);
}

PeekedQuestion::~PeekedQuestion() {
  RemoveFolder(folder_);
}

void PeekedQuestion::Read(const std::filesystem::path& file) {
  PickedFiles pictures(
      [this](const PickedFiles::Place& place, const std::u16string& name) {
        return place.first == number_ && IsPicture(name);
      },
      kMostBytes);
  const ExamReadOutcome outcome = ReadWithoutUnpacking(exam_, services_, file, pictures);
  isOpened_ = outcome.opened;
  exam_.CountQuestions();
  if (outcome.endsEarly && outcome.firstMissingQuestion > 0)
    exam_.questionCount = std::min(exam_.questionCount, outcome.firstMissingQuestion - 1);
  isThere_ = isOpened_ && exam_.readDoubt != ReadDoubt::NoExam && number_ <= exam_.questionCount;
  if (!isThere_) return;
  ExamQuestion& question = exam_.Question(number_);
  for (unsigned slot = 0; slot < kMaxAttachments; ++slot) {
    const auto content = pictures.Contents().find({number_, slot});
    if (content != pictures.Contents().end()) {
      KeepPicture(slot, content->second);
    } else if (!question.attachmentNames[slot].empty()) {
      question.attachmentPaths[slot] = PathToText(folder_ / std::to_string(slot));
    }
  }
}

/// The author's name could be any.
void PeekedQuestion::KeepPicture(unsigned slot, std::string_view content) {
  ExamQuestion& question = exam_.Question(number_);
  std::error_code ignored;
  MakeWorkRoot(folder_.parent_path());
  std::filesystem::create_directory(folder_, ignored);
  const std::filesystem::path file =
      folder_ /
      (std::to_string(slot) + "." + TextToPath(ExtensionOrNothing(question.attachmentNames[slot])).string());
  std::ofstream(file, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
  question.attachmentPaths[slot] = PathToText(file);
}

}  // namespace quorvantis
