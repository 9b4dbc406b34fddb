// SPDX-License-Identifier: MIT
#include "model/document/FrameSetExam.h"

#include <algorithm>
#include <set>

namespace quorvantis {
namespace {

constexpr std::size_t kPrefix = 3;  // characters

}  // namespace

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
  previewPrefixes.clear();
}

void FrameSetExam::PrefixAttachmentPaths(int on) {
  std::set<std::u16string> attached(examAttachmentPaths.begin(), examAttachmentPaths.end());
  for (int n = 1; n <= questionCount; ++n) {
    const AttachmentList& paths = Question(n).attachmentPaths;
    attached.insert(paths.begin(), paths.end());
  }
  for (const std::u16string& path : attached) {
    if (on != 0) {
      if (path.size() > kPrefix) ++previewPrefixes[path];
    } else if (const auto prefixed = previewPrefixes.find(path); prefixed != previewPrefixes.end()) {
      if (--prefixed->second == 0) previewPrefixes.erase(prefixed);
    }
  }
}

bool FrameSetExam::IsPath(const std::u16string& entry) const {
  return std::ranges::find(displayNamesAmongPaths, entry) == displayNamesAmongPaths.end();
}

std::u16string FrameSetExam::PathOnPages(const std::u16string& path) const {
  const auto prefixes = previewPrefixes.find(path);
  std::u16string prefixed;
  for (int i = 0; prefixes != previewPrefixes.end() && i < prefixes->second; ++i) {
    prefixed.append(path, 0, kPrefix);
  }
  return prefixed + path;
}

}  // namespace quorvantis
