// SPDX-License-Identifier: MIT
#pragma once

#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "model/document/FrameSetExam.h"
#include "taking/CollectedMessages.h"

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace quorvantis {

/// One question of an exam file, to look at: of all attached files, only the pictures of this question are
/// unpacked, so a large exam is as quick as a small one. It may be made on any thread. Nothing is shown to
/// the user, and the file is never changed.
class PeekedQuestion {
 public:
  /// Pictures that are larger together are shown by their names.
  static constexpr std::int64_t kMostBytes = std::int64_t{48} << 20;

  /// Reads question `number`, 1 to 500, of `file`, which is a stranger's. `services` must outlive this; its
  /// texts and its folder are used, and its `progress`. The pictures are in `folder`, of this object alone:
  /// it is made in the work root when there are any, and removed at the end.
  PeekedQuestion(const ExamServices& services, std::filesystem::path folder,
                 const std::filesystem::path& file, int number);
  ~PeekedQuestion();
  PeekedQuestion(const PeekedQuestion&) = delete;
  PeekedQuestion& operator=(const PeekedQuestion&) = delete;

  /// Whether there is a file that can be opened.
  bool IsOpened() const { return isOpened_; }

  /// Whether the file holds the question whole.
  bool IsThere() const { return isThere_; }

  const ExamQuestion& Question() const { return exam_.Question(number_); }
  int Number() const { return number_; }

  /// The exam with all its texts. The paths of this question's files name its pictures; that of another file
  /// has no extension, and nothing is there.
  const FrameSetExam& Exam() const { return exam_; }

 private:
  void Read(const std::filesystem::path& file);
  void KeepPicture(unsigned slot, std::string_view content);

  std::filesystem::path folder_;
  int number_;
  CollectedMessages messages_;
  LongAnswerFlags flags_;
  ExamServices services_;
  FrameSetExam exam_;
  bool isOpened_ = false;
  bool isThere_ = false;
};

}  // namespace quorvantis
