// SPDX-License-Identifier: MIT
#pragma once

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

/// By what a question is recognised elsewhere.
struct QuestionMarks {
  QuestionMarks(const ExamQuestion& question, const std::vector<IndexedFile>& files,
                const FileDigest& digest);

  std::string key;     ///< the same for equal content
  std::string sketch;  ///< for near duplicates
};

}  // namespace quorvantis
