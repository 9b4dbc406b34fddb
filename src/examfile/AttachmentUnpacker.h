// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/AttachmentName.h"
#include "examfile/AttachmentSink.h"
#include "examfile/ExamFileFields.h"
#include "examfile/ExamFileForm.h"
#include "examfile/ExamFileReader.h"
#include "model/document/ExamServices.h"

#include <filesystem>

namespace quorvantis {

/// Reads the attachment sections of an exam file: each file goes into the work folder, its path and display
/// name into the document. Whatever names the file contains, nothing is written outside that folder, no link
/// is followed and no file is executable.
class AttachmentUnpacker {
 public:
  /// All must outlive the unpacker. With a `sink` nothing is unpacked: the sink gets the content of the
  /// files, and the document their names without paths.
  AttachmentUnpacker(ByteSource& source, FieldReader& fields, const ExamFileForm& form, FrameSetExam& exam,
                     const ExamServices& services, AttachmentSink* sink = nullptr);

  /// The exam-level section with its count. After a file that cannot be created no more are unpacked, but
  /// their bytes are skipped, so that the questions after them are found.
  void ExtractExamAttachments();

  /// The section of question `question`. A file that cannot be created is skipped; the others are unpacked.
  void ExtractQuestionAttachments(int question);

  /// How many files could not be created or not completely written.
  int FilesNotCreated() const { return filesNotCreated_; }

  /// The files after the tenth of a list.
  const PassedOver& FilesPassedOver() const { return passedOver_; }

 private:
  int ReadCount();
  bool ReadEntry(AttachmentEntry& entry, bool withOralFlag);
  std::filesystem::path TargetOf(const AttachmentEntry& entry);
  bool Keep(const AttachmentEntry& entry, const std::filesystem::path& target, int question, unsigned slot);
  bool Unpack(const std::filesystem::path& target, std::int64_t size);
  void Skip(std::int64_t size);
  void NotePassedOver(int question);

  ByteSource& source_;
  FieldReader& fields_;
  ExamFileForm form_;
  FrameSetExam& exam_;
  Progress& progress_;
  AttachmentSink* sink_;
  FreeNames freeNames_;
  int filesNotCreated_ = 0;
  PassedOver passedOver_;
};

}  // namespace quorvantis
