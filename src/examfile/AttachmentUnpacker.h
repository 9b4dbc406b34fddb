// SPDX-License-Identifier: MIT
#pragma once

#include "examfile/AttachmentName.h"
#include "examfile/ExamFileFields.h"
#include "examfile/ExamFileForm.h"
#include "model/document/ExamServices.h"

namespace quorvantis {

/// Reads the attachment sections of an exam file: each file goes into the work folder, its path and display
/// name into the document. Nothing is written outside that folder, no link is followed and no file is
/// executable, whatever the names in the file say.
class AttachmentUnpacker {
 public:
  /// All must outlive the unpacker.
  AttachmentUnpacker(ByteSource& source, FieldReader& fields, const ExamFileForm& form, FrameSetExam& exam,
                     const ExamServices& services);

  /// The exam-level section, its count included. After a file that cannot be created no further ones are
  /// unpacked, but their bytes are skipped, so that the questions behind them are found.
  void ExtractExamAttachments();

  /// The section of question `question`. A file that cannot be created is left out, the others are unpacked.
  void ExtractQuestionAttachments(int question);

  /// How many files could not be created, or not wholly written.
  int FilesNotCreated() const { return filesNotCreated_; }

 private:
  int ReadCount();
  bool ReadEntry(AttachmentEntry& entry, bool withOralFlag);
  bool Unpack(const std::filesystem::path& target, std::int64_t size);
  void Skip(std::int64_t size);

  ByteSource& source_;
  FieldReader& fields_;
  ExamFileForm form_;
  FrameSetExam& exam_;
  Progress& progress_;
  FreeNames freeNames_;
  int filesNotCreated_ = 0;
};

}  // namespace quorvantis
