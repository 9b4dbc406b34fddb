// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankUpdate.h"
#include "bank/search/BankSearch.h"
#include "examfile/ExamFileWriter.h"
#include "model/document/FrameSetExam.h"
#include "platform/digest/OpenSslDigest.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace quorvantis::test {

inline ExamQuestion QuestionWith(std::u16string text, OptionTexts options = {}) {
  ExamQuestion question;
  question.text = std::move(text);
  question.options = std::move(options);
  return question;
}

/// A bank with one folder, and exams in it.
class BankTest : public testing::Test {
 protected:
  BankTest() {
    std::filesystem::create_directory(exams);
    index = Open();
    if (!index || index->AddFolder(exams).IsAnything()) ADD_FAILURE() << "no bank";
  }

  std::optional<BankIndex> Open() {
    problem = {};
    return BankIndex::Open(BankPlaceAt(folder / "cache" / "bank.sqlite"), files, problem);
  }

  std::filesystem::path WriteExam(const std::filesystem::path& file, const std::u16string& title,
                                  const std::vector<ExamQuestion>& questions) {
    FrameSetExam exam(world.services);
    exam.title = title;
    for (std::size_t i = 0; i < questions.size(); ++i) exam.Question(static_cast<int>(i) + 1) = questions[i];
    exam.CountQuestions();
    std::filesystem::create_directories(file.parent_path());
    EXPECT_FALSE(ExamFileWriter(exam, world.services).Write(file));
    return file;
  }

  /// From then on the file counts as one that may change without a new time, however slow the machine is.
  static void MakeUnsettled(const std::filesystem::path& file) {
    std::filesystem::last_write_time(file,
                                     std::filesystem::file_time_type::clock::now() + std::chrono::hours(1));
  }

  BankUpdateReport Update() { return Update(*index); }
  BankUpdateReport Update(BankIndex& bank) {
    BankUpdate update(bank, world.services, digest);
    update.Run();
    return update.Report();
  }

  BankHits Find(std::u16string_view query, std::size_t limit = 100) {
    return BankSearch(*index, world.services, digest).Find(ParseBankQuery(query), limit);
  }
  std::size_t CountOf(std::u16string_view query) { return Find(query).hits.size(); }

  TemporaryFolder folder;
  const std::filesystem::path exams = std::filesystem::canonical(folder.Path()) / "exams";
  PosixFiles files;
  OpenSslDigest digest;
  RecordingWorld world{folder / "app", files};
  BankProblem problem;
  std::optional<BankIndex> index;
};

}  // namespace quorvantis::test
