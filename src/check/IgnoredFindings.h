// SPDX-License-Identifier: MIT
#pragma once

#include "check/Finding.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace quorvantis {

class Files;
class FrameSetExam;

/// What a user does not want to be told again of an exam, in "ignored-findings.ini" in the application
/// folder: exams never hold it. A section for each exam, by its path, has a key for each rule and a hash for
/// each ignored place. The hash is of the question's content, so the place moves with the question, and a
/// question that changes is checked anew.
class IgnoredFindings {
 public:
  static constexpr const char* kFile = "ignored-findings.ini";
  static constexpr std::size_t kMostExams = 100;   ///< those that were added to last
  static constexpr std::size_t kMostPlaces = 500;  ///< of a rule in an exam, likewise

  /// `files` must outlive this.
  IgnoredFindings(const std::filesystem::path& applicationFolder, Files& files)
      : file_(applicationFolder / kFile), files_(files) {}

  /// Takes what was ignored of the exam in this file, given by its full path. An empty path stands for an
  /// exam without a file: nothing is ignored yet, and nothing is written.
  void Open(const std::filesystem::path& exam);

  /// The exam that is open has got another file: what is ignored of it is now kept for that one, too.
  void TakeTo(const std::filesystem::path& exam);

  /// `exam` is the one that the finding is about.
  bool Has(const Finding& finding, const FrameSetExam& exam) const;

  /// Failing to write the file is ignored, here and below; it then holds until another exam is opened.
  void Add(const Finding& finding, const FrameSetExam& exam);
  void Remove(const Finding& finding, const FrameSetExam& exam);

 private:
  using Places = std::map<std::string, std::vector<std::u16string>, std::less<>>;

  void Write() const;
  std::string OwnSection(const std::string& name) const;

  std::filesystem::path file_;
  Files& files_;
  std::filesystem::path exam_;
  Places places_;  ///< by rule
};

}  // namespace quorvantis
