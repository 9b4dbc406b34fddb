// SPDX-License-Identifier: MIT
#include "recovery/RecoveryKeeper.h"

#include "model/document/ExamServices.h"
#include "platform/DebugOutput.h"

#include <chrono>
#include <exception>
#include <utility>

namespace quorvantis {

RecoveryKeeper::RecoveryKeeper(ExamEditor& editor)
    : editor_(editor),
      folder_(editor.state.document.Services().files,
              RecoveryRoot(editor.state.document.Services().applicationFolder)) {
  editor_.files.SetUnsavedWork(this);
}

RecoveryKeeper::~RecoveryKeeper() {
  editor_.files.SetUnsavedWork(nullptr);
}

bool RecoveryKeeper::DiffersFromFile(const ExamSnapshot& snapshot) const {
  const auto inFile = inFiles_.find(editor_.state.FileName());
  return inFile == inFiles_.end() || inFile->second != snapshot.substance;
}

/// The exam equals its file.
void RecoveryKeeper::NoteFile() {
  inFiles_[editor_.state.FileName()] = TakeSnapshot(editor_).substance;
  seen_.reset();
  failure_.clear();
}

void RecoveryKeeper::Look() {
  const bool isWriting =
      writing_.valid() && writing_.wait_for(std::chrono::seconds(0)) == std::future_status::timeout;
  if (asleep_ || isWriting) return;
  Wait();
  ExamSnapshot snapshot = TakeSnapshot(editor_, size_);
  size_ = snapshot.content.size();
  if (snapshot.state == seen_) return;
  seen_ = snapshot.state;
  if (DiffersFromFile(snapshot)) {
    Write(std::move(snapshot));
  } else {
    folder_.Remove();
    failure_.clear();
  }
}

void RecoveryKeeper::Write(ExamSnapshot snapshot) {
  const auto write = [this](const ExamSnapshot& content) {
    try {
      return folder_.Write(content);
    } catch (const std::exception&) {  // of memory
      return std::make_error_code(std::errc::not_enough_memory);
    }
  };
  constexpr auto kWhereverPossible = std::launch::async | std::launch::deferred;
  writing_ = std::async(kWhereverPossible, write, std::move(snapshot));
}

/// Waits for the background write. What could not be written is tried again.
void RecoveryKeeper::Wait() {
  if (!writing_.valid()) return;
  failure_ = writing_.get();
  if (!failure_) return;
  seen_.reset();
  editor_.state.document.Services().debug.Line(u"RecoveryKeeper::!folder.Write");
}

void RecoveryKeeper::LookAndWait() {
  Wait();
  Look();
  Wait();
}

void RecoveryKeeper::Restored(const std::filesystem::path& copy) {
  Wait();
  folder_.Adopt(copy);
  inFiles_.erase(editor_.state.FileName());
  seen_.reset();
  asleep_ = false;
}

void RecoveryKeeper::Saved() {
  Wait();
  folder_.Remove();
  NoteFile();
}

void RecoveryKeeper::Left(Parting parting) {
  if (asleep_) return;
  if (parting == Parting::GiveUp) {
    Wait();
    folder_.Remove();
  } else {
    LookAndWait();
    folder_.Release();
  }
  asleep_ = true;
}

void RecoveryKeeper::Entered() {
  Wait();
  NoteFile();
  asleep_ = false;
}

}  // namespace quorvantis
