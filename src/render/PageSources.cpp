// SPDX-License-Identifier: MIT
#include "render/PageSources.h"

#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "platform/PageStore.h"
#include "render/AttachmentPath.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

/// Which of the two forms a page uses depends on the kind of the file; both are known here.
void AddSources(const FrameSetExam& exam, const std::u16string& path, const std::u16string& name,
                bool muted) {
  const std::filesystem::path file = TextToPath(path).lexically_normal();
  if (!file.is_absolute()) return;  // files of students
  const std::u16string onPages = exam.PathOnPages(path);
  for (const std::u16string_view source : {RelativeSource(onPages), PlayerSource(onPages)}) {
    exam.Services().pages.AddSource({std::u16string(source), file, name, muted});
  }
}

}  // namespace

void AddPageSources(const FrameSetExam& exam) {
  for (std::size_t i = 0; i < kMaxAttachments; ++i) {
    const std::u16string& path = exam.examAttachmentPaths[i];
    if (exam.IsPath(path)) AddSources(exam, path, exam.examAttachmentNames[i], false);
  }
  for (int n = 1; n <= exam.questionCount; ++n) {
    const ExamQuestion& question = exam.Question(n);
    for (std::size_t i = 0; i < kMaxAttachments; ++i) {
      AddSources(exam, question.attachmentPaths[i], question.attachmentNames[i], question.oralFlag == 1);
    }
  }
}

}  // namespace quorvantis
