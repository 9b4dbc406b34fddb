// SPDX-License-Identifier: MIT
#include "bank/near/OpenedContent.h"

#include "text/PathText.h"
#include "text/Utf.h"

#include <string>
#include <utility>
#include <vector>

namespace quorvantis {

QuestionContent OpenedContent(const ExamQuestion& question, const FileDigest& digest) {
  std::vector<std::u16string> files;
  for (const std::u16string& path : question.attachmentPaths) {
    if (path.empty()) break;
    std::string ofFile = digest.OfFile(TextToPath(path));
    if (ofFile.empty()) ofFile = digest.OfBytes({});
    files.push_back(Utf8ToUtf16(ofFile));
  }
  return ContentOf(question, std::move(files));
}

}  // namespace quorvantis
