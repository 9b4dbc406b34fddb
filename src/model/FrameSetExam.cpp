// SPDX-License-Identifier: MIT
#include "model/FrameSetExam.h"

namespace quorvantis {

FrameSetExam::FrameSetExam(ExamServices& services) : services_(&services) {}

void FrameSetExam::Reset() {
  ExamPaper::Reset();
  examAttachmentPaths.fill({});
  examAttachmentNames.fill({});
  displayNamesAmongPaths.clear();
  pathsWithoutContent.clear();
  readDoubt = ReadDoubt::None;
  filesNotUnpacked = 0;
  examAttachmentTypes.fill(0);
  attachmentPageWriter.frameKinds.fill(0);
  boundaryQuestion = 0;
  previewPrefixes = 0;
}

void FrameSetExam::PrefixAttachmentPaths(int on) {
  if (on != 0) {
    ++previewPrefixes;
  } else if (previewPrefixes > 0) {
    --previewPrefixes;
  }
}

std::u16string FrameSetExam::PathOnPages(const std::u16string& path) const {
  constexpr std::size_t kPrefix = 3;
  std::u16string prefixed;
  for (int i = 0; i < previewPrefixes && path.size() > kPrefix; ++i) prefixed.append(path, 0, kPrefix);
  return prefixed + path;
}

}  // namespace quorvantis
