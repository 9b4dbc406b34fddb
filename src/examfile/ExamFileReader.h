// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/ByteSource.h"
#include "examfile/ExamFileForm.h"
#include "model/document/ExamServices.h"

#include <filesystem>

namespace quorvantis {

/// What a reader has to say of a file, beside the exam that it filled.
struct ExamReadOutcome {
  bool opened = false;  ///< otherwise the exam is as it was
  ExamFileForm form{&kUntaggedVersion, FieldEncoding::Utf16InBytes};
  int filesNotCreated = 0;  ///< attached files that could not be unpacked
  bool endsEarly = false;   ///< the data ended before the fields did; what was read has been kept
  int firstMissingQuestion =
      0;  ///< when it ends early: the first question that is not whole, 0 when there are none
};

/// Loads one exam file into a document that the caller has reset, and unpacks the attached files into the
/// emptied work folder. Bad bytes never fail a read: it yields an exam and what was lost. Memory does not
/// grow with the attached files, nor with any number in the file.
class ExamFileReader {
 public:
  /// Opens `file`. Exam and services must outlive the reader.
  ExamFileReader(FrameSetExam& exam, const ExamServices& services, const std::filesystem::path& file)
      : exam_(exam), services_(services), source_(file) {}

  bool IsOpen() const { return source_.IsOpen(); }

  /// Whether the file begins with the tag of `version`.
  bool HasTag(const ExamFileVersion& version);

  /// Reads the file, once: as one of `version`, whose tag it has, or as an untagged one, whatever it holds.
  ExamReadOutcome Read(const ExamFileVersion& version);

 private:
  FieldEncoding EncodingOf(const ExamFileVersion& version);

  FrameSetExam& exam_;
  const ExamServices& services_;
  ByteSource source_;
};

}  // namespace quorvantis
