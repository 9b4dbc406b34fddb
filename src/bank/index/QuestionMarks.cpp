// SPDX-License-Identifier: MIT
#include "bank/index/QuestionMarks.h"

#include "bank/index/FoldedText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {

QuestionMarks::QuestionMarks(const ExamQuestion& question, const std::vector<IndexedFile>& files,
                             const FileDigest& digest) {
  std::vector<std::string> parts;
  parts.reserve(kOptionCount + files.size());
  for (const std::u16string& option : question.options) parts.push_back(Utf16ToUtf8(FoldForSearch(option)));
  for (const IndexedFile& file : files) parts.push_back(file.hash);
  std::sort(parts.begin(), parts.end());
  std::string all = Utf16ToUtf8(FoldForSearch(question.text));
  for (const std::string& part : parts) all.append("\1").append(part);
  key = digest.OfBytes(all);
}

}  // namespace quorvantis
