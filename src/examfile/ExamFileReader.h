// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/AttachmentSink.h"
#include "examfile/ByteSource.h"
#include "examfile/ExamFileForm.h"
#include "model/document/ExamServices.h"

#include <filesystem>

namespace quorvantis {

/// What a file holds beyond the limits of an exam. It is passed over.
struct PassedOver {
  int examFiles = 0;      ///< attached files after the tenth of the exam
  int questionFiles = 0;  ///< attached files after the tenth of a question
  int firstQuestion = 0;  ///< the first question with such files, 0 if there is none
  int questions = 0;      ///< questions after the 500th, as many as the file says; 0 if it ends before them

  bool IsAnything() const { return examFiles > 0 || questionFiles > 0 || questions > 0; }
};

/// What a reader reports about a file, apart from the exam that it filled.
struct ExamReadOutcome {
  bool opened = false;  ///< if false, the exam is unchanged
  ExamFileForm form{&kUntaggedVersion, FieldEncoding::Utf16InBytes};
  int filesNotCreated = 0;       ///< attached files that could not be unpacked
  bool endsEarly = false;        ///< the data ended before the last field; what was read has been kept
  int firstMissingQuestion = 0;  ///< if it ends early: the first incomplete question, 0 if there is none
  PassedOver passedOver;
};

/// Whether an exam has everything that its file holds. Any file without a tag counts as untagged, so only its
/// content can tell whether it is an exam.
ReadDoubt DoubtOf(const ExamReadOutcome& outcome, const FrameSetExam& exam);

/// Loads one exam file into a document that the caller has reset, and unpacks the attached files into the
/// emptied work folder. Invalid bytes never make a read fail: the result is an exam and what was lost. Memory
/// use depends neither on the attached files nor on any number in the file.
class ExamFileReader {
 public:
  /// Opens `file`. `exam` and `services` must outlive the reader.
  ExamFileReader(FrameSetExam& exam, const ExamServices& services, const std::filesystem::path& file)
      : exam_(exam), services_(services), source_(file) {}

  bool IsOpen() const { return source_.IsOpen(); }

  /// Whether the file begins with the tag of `version`.
  bool HasTag(const ExamFileVersion& version);

  /// Reads the file, once: as `version`, whose tag it has, or as an untagged file with any content. With a
  /// `sink` nothing is unpacked (see AttachmentUnpacker).
  ExamReadOutcome Read(const ExamFileVersion& version, AttachmentSink* sink = nullptr);

 private:
  FieldEncoding EncodingOf(const ExamFileVersion& version);

  FrameSetExam& exam_;
  const ExamServices& services_;
  ByteSource source_;
};

/// Reads a file of any version into `exam`, which the caller has reset, without unpacking anything: the
/// content of attached files goes to `sink`, and nothing is written or shown. Sets the exam's `readDoubt`.
ExamReadOutcome ReadWithoutUnpacking(FrameSetExam& exam, const ExamServices& services,
                                     const std::filesystem::path& file, AttachmentSink& sink);

}  // namespace quorvantis
