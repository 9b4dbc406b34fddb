// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankIndex.h"
#include "bank/index/QuestionMarks.h"
#include "bank/search/BankQuery.h"
#include "bank/search/FolderTags.h"
#include "model/ExamFields.h"
#include "text/TextSpan.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

class FileDigest;
struct ExamServices;

/// A part of a text that matches a word of the query.
struct BankHighlight {
  ExamFieldName field =
      ExamFieldName::QuestionText;  ///< or Options, FillInAnswer, EssayAnswer, AttachmentName
  unsigned index = 0;               ///< of the option or of the file; else 0
  TextSpan span;

  friend bool operator==(const BankHighlight&, const BankHighlight&) = default;
};

/// A question of the bank, with all that the index knows of it.
struct BankQuestion {
  std::int64_t id = 0;  ///< until its exam is read again
  BankExam exam;
  int number = 0;  ///< 1 to 500
  QuestionKind kind = QuestionKind::Choice;
  std::u16string text;
  OptionTexts options;
  std::u16string answerText;
  std::u16string essayAnswer;
  int answerMask = 0;
  std::optional<double> score;
  std::vector<IndexedFile> files;
  std::string key;  ///< QuestionContentKey
};

struct BankHit {
  BankQuestion question;
  std::vector<BankHighlight> highlights{};  ///< in the order of fields, then of places
  std::vector<std::u16string> tags{};       ///< that its folder gives it
};

struct BankHits {
  std::vector<BankHit> hits;  ///< the best first
  std::size_t total = 0;      ///< how many questions the index has for the query
  BankProblem problem;
  std::vector<UnreadTags> unreadTags;  ///< that a query for tags would have needed
};

/// Finds questions in the index. What a hit shows is what its file holds now: an exam whose file has changed
/// is read again first, and what is gone is left out.
class BankSearch {
 public:
  /// The first three must outlive the search. `tags` may be shared by searches, so that the files of tags are
  /// read once.
  BankSearch(BankIndex& index, ExamServices& services, const FileDigest& digest,
             std::shared_ptr<FolderTags> tags = nullptr);

  /// Up to `limit` hits after the first `offset`. None when the progress of `services` is cancelled, which is
  /// polled for each exam: on a network, looking at its file may take a moment.
  BankHits Find(const BankQuery& query, std::size_t limit, std::size_t offset = 0);

  /// The identifiers of all questions for a query, in no order, without looking at the files. Empty, with
  /// `problem` set, when the index cannot be read.
  std::vector<std::int64_t> FindAll(const BankQuery& query, BankProblem& problem) const;

  /// A question by its identifier; nothing if it is no longer in the index.
  std::optional<BankQuestion> Question(std::int64_t id, BankProblem& problem) const;

 private:
  BankHits FindOnce(const BankQuery& query, std::size_t limit, std::size_t offset) const;
  bool Refresh(BankHits& hits) const;
  void AddDetails(const BankQuery& query, BankHits& hits) const;

  BankIndex& index_;
  ExamServices& services_;
  const FileDigest& digest_;
  std::shared_ptr<FolderTags> tags_;
};

}  // namespace quorvantis
