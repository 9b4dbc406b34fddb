// SPDX-License-Identifier: MIT
#pragma once

#include "likeness/QuestionContent.h"
#include "model/ExamQuestion.h"
#include "platform/FileDigest.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quorvantis {

/// What the index keeps of an attached file.
struct IndexedFile {
  std::u16string name;
  std::int64_t size = 0;  ///< bytes
  std::string hash;       ///< SHA-256 of the content
};

/// The content of a question whose files are known by their hashes.
QuestionContent IndexedContent(const ExamQuestion& question, const std::vector<IndexedFile>& files);

/// By what a question is recognised elsewhere.
struct QuestionMarks {
  QuestionMarks(const ExamQuestion& question, const std::vector<IndexedFile>& files,
                const FileDigest& digest);

  std::string key;     ///< QuestionContentKey
  std::string sketch;  ///< the bytes of its QuestionSketch
};

}  // namespace quorvantis
