// SPDX-License-Identifier: MIT
#include "bank/index/QuestionMarks.h"

#include "bank/near/QuestionContentKey.h"
#include "bank/near/QuestionSketch.h"
#include "likeness/QuestionRelation.h"
#include "text/Utf.h"

namespace quorvantis {

QuestionContent IndexedContent(const ExamQuestion& question, const std::vector<IndexedFile>& files) {
  std::vector<std::u16string> hashes;
  hashes.reserve(files.size());
  for (const IndexedFile& file : files) hashes.push_back(Utf8ToUtf16(file.hash));
  return ContentOf(question, std::move(hashes));
}

QuestionMarks::QuestionMarks(const ExamQuestion& question, const std::vector<IndexedFile>& files,
                             const FileDigest& digest) {
  const QuestionContent content = IndexedContent(question, files);
  key = QuestionContentKey(content, digest);
  sketch = QuestionSketch(ShinglesOf(content)).Bytes();
}

}  // namespace quorvantis
