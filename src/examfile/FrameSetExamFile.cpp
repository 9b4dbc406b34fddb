// SPDX-License-Identifier: MIT
// The operations of the exam document that read and write exam files.
#include "examfile/ExamFileMessages.h"
#include "examfile/ExamFileReader.h"
#include "examfile/ExamFileWriter.h"
#include "examfile/FileFailure.h"
#include "examfile/WorkFolder.h"
#include "model/document/FrameSetExam.h"
#include "platform/DebugOutput.h"
#include "platform/UserDialogs.h"
#include "text/PathText.h"

#include <memory>

namespace quorvantis {

namespace {

/// Ends every read: the document records the outcome, and the user is told about losses.
void TakeOutcome(FrameSetExam& exam, const std::filesystem::path& file, const ExamReadOutcome& outcome) {
  const ExamServices& services = exam.Services();
  if (!outcome.opened) services.dialogs.ShowError(OpenFileError(services.strings, file, ReadFailureOf(file)));
  ShowReadLosses(services, outcome);
  exam.lastRead = std::make_shared<const ExamReadOutcome>(outcome);
  exam.readDoubt = DoubtOf(outcome, exam);
  exam.filesNotUnpacked = outcome.filesNotCreated;
}

}  // namespace

// The readers form a chain: each opens the file, checks its tag and passes on a file that is not its own.

void FrameSetExam::ReadExamFile(const std::filesystem::path& file) {
  ExamServices& services = Services();
  services.debug.Line(PathToText(file));
  ExamFileReader reader(*this, services, file);
  if (reader.IsOpen()) PrepareWorkFolder(*this, services.applicationFolder, file);
  if (reader.IsOpen() && !reader.HasTag(kCurrentVersion)) return ReadExamFileV202(file);
  TakeOutcome(*this, file, reader.Read(kCurrentVersion));
}

void FrameSetExam::ReadExamFileV202(const std::filesystem::path& file) {
  ExamFileReader reader(*this, Services(), file);
  if (reader.HasTag(kVersion202)) return TakeOutcome(*this, file, reader.Read(kVersion202));
  if (reader.HasTag(kVersion0214)) return ReadExamFile0214(file);
  ReadUntaggedExamFile(file);
}

void FrameSetExam::ReadExamFile0214(const std::filesystem::path& file) {
  ExamFileReader reader(*this, Services(), file);
  if (!reader.HasTag(kVersion0214)) return ReadUntaggedExamFile(file);
  TakeOutcome(*this, file, reader.Read(kVersion0214));
}

void FrameSetExam::ReadUntaggedExamFile(const std::filesystem::path& file) {
  TakeOutcome(*this, file, ExamFileReader(*this, Services(), file).Read(kUntaggedVersion));
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
