// SPDX-License-Identifier: MIT
#include "render/PageSources.h"

#include "model/FrameSetExam.h"
#include "platform/ExamServices.h"
#include "platform/PageStore.h"
#include "render/AttachmentPath.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

/// Which of the two forms a page uses depends on the kind of the file; both are known here.
void AddSources(const FrameSetExam& exam, const AttachmentList& paths, const AttachmentList& names,
                bool muted) {
  for (std::size_t i = 0; i < paths.size(); ++i) {
    const std::filesystem::path file = TextToPath(paths[i]).lexically_normal();
    if (!file.is_absolute()) continue;  // names among the paths, and files of students
    const std::u16string path = exam.PathOnPages(paths[i]);
    for (const std::u16string_view source : {RelativeSource(path), PlayerSource(path)}) {
      exam.Services().pages.AddSource({std::u16string(source), file, names[i], muted});
    }
  }
}

}  // namespace

void AddPageSources(const FrameSetExam& exam) {
  AddSources(exam, exam.examAttachmentPaths, exam.examAttachmentNames, false);
  for (int n = 1; n <= exam.questionCount; ++n) {
    const ExamQuestion& question = exam.Question(n);
    AddSources(exam, question.attachmentPaths, question.attachmentNames, question.oralFlag == 1);
  }
}

}  // namespace quorvantis
