// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "bank/index/FileStamp.h"
#include "bank/index/IndexedExam.h"
#include "bank/index/SearchedTexts.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// What an index holds of an exam file to tell whether it has changed.
struct KnownExam {
  std::int64_t id = 0;
  FileStamp stamp;
  bool isSettled = false;  ///< false if the file may have changed without a new stamp
  std::string hash;
};

/// Writes exams into an index, one transaction for each. Its functions throw DatabaseError.
class IndexWriter {
 public:
  enum class Outcome { Unchanged, Added, Changed, Gone };

  /// All must outlive the writer.
  IndexWriter(BankIndex& index, ExamServices& services, const FileDigest& digest);

  /// Brings one exam up to date. Another program may have done so meanwhile. What cannot be looked at, since
  /// its disk was unplugged or its folder is closed now, stays as it is.
  Outcome Update(const std::filesystem::path& file);

  /// Of the last exam that Update has read.
  ExamState LastState() const { return exam_.State(); }

  /// Whether the exam was in the index.
  bool Remove(const std::filesystem::path& file);

  std::optional<KnownExam> Find(const std::filesystem::path& file);

 private:
  Outcome UpdateMissing(const std::filesystem::path& file);
  bool IsGone(const std::filesystem::path& file) const;
  bool RemoveKnown(const std::filesystem::path& file);
  void Touch(std::int64_t exam, const KnownExam& fresh);
  void RemoveQuestions(std::int64_t exam);
  void Unlist(std::int64_t id, const SearchedTexts& texts);
  std::int64_t StoreExam(const std::filesystem::path& file, const KnownExam& fresh,
                         const std::optional<KnownExam>& known);
  void StoreFiles(std::int64_t exam, int number);
  void StoreQuestion(std::int64_t exam, int number);
  void StoreContent(std::int64_t id, int number);
  void StoreTexts(std::int64_t id, const SearchedTexts& texts);

  Database& data_;
  const FileDigest& digest_;
  std::vector<std::filesystem::path> folders_;  ///< of the bank
  IndexedExam exam_;
  Statement find_;
  Statement touch_;
  Statement insertExam_;
  Statement insertFile_;
  Statement insertQuestion_;
  Statement insertContent_;
  Statement insertGram_;
  Statement insertShort_;
  Statement deleteGram_;
  Statement deleteShort_;
};

}  // namespace quorvantis
