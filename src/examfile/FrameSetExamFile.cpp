// SPDX-License-Identifier: MIT
// The operations of the exam document that read and write exam files.
#include "examfile/ExamFileMessages.h"
#include "examfile/ExamFileReader.h"
#include "examfile/ExamFileWriter.h"
#include "examfile/FileFailure.h"
#include "model/FrameSetExam.h"
#include "platform/UserDialogs.h"

namespace quorvantis {

namespace {

/// An untagged file is any file that has no tag, so only its content can tell.
ReadDoubt DoubtOf(const ExamReadOutcome& outcome, const FrameSetExam& exam) {
  const bool isUntagged = outcome.form.version == &kUntaggedVersion;
  if (outcome.opened && isUntagged && (outcome.endsEarly || exam.questionCount == 0))
    return ReadDoubt::NoExam;
  return !outcome.opened || outcome.endsEarly ? ReadDoubt::ReadInPart : ReadDoubt::None;
}

}  // namespace

void FrameSetExam::ReadExamFile(const std::filesystem::path& file) {
  ExamServices& services = Services();
  const ExamReadOutcome outcome = ExamFileReader(*this, services).Read(file);
  if (!outcome.opened) services.dialogs.ShowError(OpenFileError(services.strings, file, ReadFailureOf(file)));
  ShowReadLosses(services, outcome);
  readDoubt = DoubtOf(outcome, *this);
  filesNotUnpacked = outcome.filesNotCreated;
}

bool FrameSetExam::WriteExamFile(const std::filesystem::path& file, bool backup) {
  ExamServices& services = Services();
  ExamFileWriter writer(*this, services);
  if (backup) writer.KeepOldFile();
  const std::error_code failure = writer.Write(file);
  if (!failure) return true;
  services.dialogs.ShowError(OpenFileError(services.strings, file, failure));
  return false;
}

}  // namespace quorvantis
