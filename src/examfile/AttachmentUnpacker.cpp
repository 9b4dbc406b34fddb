// SPDX-License-Identifier: MIT
#include "examfile/AttachmentUnpacker.h"

#include "examfile/WorkFolder.h"
#include "platform/Progress.h"
#include "text/PathText.h"

#include <fstream>
#include <system_error>

namespace quorvantis {

AttachmentUnpacker::AttachmentUnpacker(ByteSource& source, FieldReader& fields, const ExamFileForm& form,
                                       FrameSetExam& exam, const ExamServices& services, AttachmentSink* sink)
    : source_(source),
      fields_(fields),
      form_(form),
      exam_(exam),
      progress_(services.progress),
      sink_(sink),
      freeNames_(WorkFolder(exam, services.applicationFolder)) {}

int AttachmentUnpacker::ReadCount() {
  int count = 0;
  VisitAttachmentCount(count, fields_);
  return count;
}

/// False if the data ended before the entry began.
bool AttachmentUnpacker::ReadEntry(AttachmentEntry& entry, bool withOralFlag) {
  VisitAttachment(*form_.version, entry, withOralFlag, fields_);
  return !source_.Ended() || !entry.name.empty();
}

void AttachmentUnpacker::Skip(std::int64_t size) {
  if (size > 0) source_.Take(static_cast<std::uint64_t>(size), nullptr);
}

/// Empty if nothing is unpacked.
std::filesystem::path AttachmentUnpacker::TargetOf(const AttachmentEntry& entry) {
  return sink_ == nullptr ? freeNames_.PathFor(FileNameOf(entry.name)) : std::filesystem::path();
}

/// Takes the content of a file to where it is wanted. False if it could not be unpacked.
bool AttachmentUnpacker::Keep(const AttachmentEntry& entry, const std::filesystem::path& target, int question,
                              unsigned slot) {
  if (sink_ == nullptr) return Unpack(target, entry.size);
  sink_->Begin(question, slot, entry.name);
  if (entry.size <= 0) return true;
  if (!sink_->WantsContent(entry.size)) {
    Skip(entry.size);
    return true;
  }
  source_.Take(static_cast<std::uint64_t>(entry.size),
               [this](std::string_view bytes) { sink_->Content(bytes); });
  return true;
}

/// Writes the next `size` bytes to a new file; without content no file is created. False if the file could
/// not be created; the bytes are skipped all the same.
bool AttachmentUnpacker::Unpack(const std::filesystem::path& target, std::int64_t size) {
  if (size <= 0) {
    if (!source_.Ended()) exam_.pathsWithoutContent.insert(PathToText(target));
    return true;
  }
  std::ofstream file;
  file.rdbuf()->pubsetbuf(nullptr, 0);
  file.open(target, std::ios::binary | std::ios::trunc);
  source_.Take(static_cast<std::uint64_t>(size), [&](std::string_view bytes) {
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    progress_.Report(source_.Position(), source_.Size());
  });
  file.close();
  if (file.good()) return true;
  std::error_code ignored;
  std::filesystem::remove(target, ignored);
  ++filesNotCreated_;
  return false;
}

void AttachmentUnpacker::ExtractExamAttachments() {
  const int count = ReadCount();
  if (count != 0) exam_.examFilesUnpacked = 1;
  bool unpacking = true;
  for (int i = 0; i < count && !source_.Ended(); ++i) {
    AttachmentEntry entry;
    if (!ReadEntry(entry, false)) return;
    const auto slot = static_cast<std::size_t>(i);
    if (slot >= kMaxAttachments) ++passedOver_.examFiles;
    unpacking = unpacking && slot < kMaxAttachments;
    if (!unpacking) {
      Skip(entry.size);
      continue;
    }
    const std::filesystem::path target = TargetOf(entry);
    exam_.examAttachmentPaths[slot] = PathToText(target);
    exam_.examAttachmentNames[slot] = entry.name;
    unpacking = Keep(entry, target, 0, static_cast<unsigned>(slot));
  }
}

void AttachmentUnpacker::NotePassedOver(int question) {
  if (passedOver_.questionFiles++ == 0) passedOver_.firstQuestion = question;
}

void AttachmentUnpacker::ExtractQuestionAttachments(int question) {
  const bool oralFlagStored = form_.version->hasOralFlag && form_.encoding == FieldEncoding::Utf16;
  ExamQuestion& target = exam_.Question(question);
  const int count = ReadCount();
  if (count != 0) exam_.questionFilesUnpacked = 1;
  for (int i = 0; i < count && !source_.Ended(); ++i) {
    AttachmentEntry entry;
    if (!ReadEntry(entry, oralFlagStored && i == 0)) return;
    if (i == 0 && form_.version->hasOralFlag) target.oralFlag = entry.oralFlag;
    const auto slot = static_cast<std::size_t>(i);
    if (slot >= kMaxAttachments) {
      NotePassedOver(question);
      Skip(entry.size);
      continue;
    }
    const std::filesystem::path path = TargetOf(entry);
    target.attachmentPaths[slot] = PathToText(path);
    target.attachmentNames[slot] = entry.name;
    Keep(entry, path, question, static_cast<unsigned>(slot));
  }
}

}  // namespace quorvantis
