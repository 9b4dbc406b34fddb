// SPDX-License-Identifier: MIT
#pragma once

#include "bank/draw/DrawRequest.h"
#include "bank/index/BankIndex.h"
#include "bank/search/BankSearch.h"
#include "bank/search/FolderTags.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <vector>

namespace quorvantis {

/// The questions of the bank that can be drawn, as they were when this was made: those with content, of exams
/// that are there, with the tags that their folders give them. A question counts as used on the day on which
/// its exam was last changed.
class DrawableQuestions {
 public:
  /// Both must outlive this. About 25 MB for 50,000 questions. Only exams in `folder` or below it are
  /// offered; if it is empty, all are.
  DrawableQuestions(BankIndex& index, Files& files, const std::filesystem::path& folder = {});

  const std::vector<DrawCandidate>& Candidates() const { return candidates_; }

  /// What the index holds of a candidate; nothing if its exam has been read again since.
  std::optional<BankQuestion> Question(std::size_t candidate) const;

  /// For DrawQuestions. Throws DatabaseError.
  ComparedQuestion ComparedAt(std::size_t candidate) const;

  const std::vector<UnreadTags>& Unread() const { return unread_; }
  const BankProblem& Problem() const { return problem_; }

 private:
  /// What all questions of an exam have in common.
  struct Origin {
    std::chrono::sys_days day;
    const TagEntries* tags = nullptr;
    bool isOffered = true;
  };

  std::map<std::int64_t, Origin> ReadOrigins(Files& files, const std::filesystem::path& folder);
  const TagEntries& TagsOf(const std::filesystem::path& folder, Files& files);
  void ReadCandidates(const std::map<std::int64_t, Origin>& origins);

  BankIndex& index_;
  std::map<std::filesystem::path, TagEntries> tags_;  // by folder
  std::vector<DrawCandidate> candidates_;
  std::vector<std::int64_t> identifiers_;  // of each candidate
  std::vector<UnreadTags> unread_;
  BankProblem problem_;
};

}  // namespace quorvantis
