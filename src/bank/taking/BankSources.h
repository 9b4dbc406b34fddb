// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/BankSearch.h"
#include "editor/WholeQuestion.h"
#include "model/document/ExamServices.h"
#include "platform/FileDigest.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace quorvantis {

class OtherExam;

/// A question that was taken from its exam, or why it was not.
struct TakenFromBank {
  std::optional<WholeQuestion> whole;
  std::u16string problem = {};  ///< of the exam file, for the user; empty if only the question is another now
};

/// The exams of the bank from which questions are taken. Each is opened once, when it is first needed; the
/// attached files of the questions exist as long as this object.
class BankSources {
 public:
  /// `services` and `digest` must outlive this. `workRoot` and the numbers are those of OtherExam:
  /// `takeNumber` gives a new one for each exam.
  BankSources(const ExamServices& services, const FileDigest& digest, std::filesystem::path workRoot,
              std::function<int()> takeNumber);
  ~BankSources();
  BankSources(const BankSources&) = delete;
  BankSources& operator=(const BankSources&) = delete;

  /// The question with its files, provided that its exam still holds it as `question` shows it.
  TakenFromBank Take(const BankQuestion& question);

 private:
  const OtherExam& Of(const std::filesystem::path& exam);

  const ExamServices& services_;
  const FileDigest& digest_;
  std::filesystem::path workRoot_;
  std::function<int()> takeNumber_;
  std::map<std::filesystem::path, std::unique_ptr<OtherExam>> exams_;
};

}  // namespace quorvantis
