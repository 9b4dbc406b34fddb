// SPDX-License-Identifier: MIT
#pragma once

#include "bank/search/QueryWords.h"
#include "model/ExamQuestion.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A word or a phrase that questions must have, or must not have.
struct BankTerm {
  std::u16string folded;  ///< see FoldForSearch; never empty
  bool isExcluded = false;
  bool isBegun = false;  ///< the user may still be typing it; matters for one or two letters

  friend bool operator==(const BankTerm&, const BankTerm&) = default;
};

/// A tag that questions must have, or must not have.
struct BankTag {
  std::u16string folded;  ///< see FoldForSearch; never empty
  bool isExcluded = false;
  bool isBegun = false;  ///< the user may still be typing it: tags that begin so count, too

  friend bool operator==(const BankTag&, const BankTag&) = default;
};

/// Bounds on the score of a question; a question without a score is in none.
struct ScoreBounds {
  double least = 0;
  double most = 0;
  bool isLeastIn = true;  ///< whether the bound itself is allowed
  bool isMostIn = true;

  friend bool operator==(const ScoreBounds&, const ScoreBounds&) = default;
};

/// What questions of the bank are wanted: every part narrows the result. All terms must be somewhere in the
/// question: in its text, its options, its answers or the names of its files; a term is not cut by their
/// borders. The empty query is every question.
struct BankQuery {
  std::vector<BankTerm> terms;
  std::vector<QuestionKind> kinds;      ///< any of these; empty for all
  std::vector<std::u16string> exams;    ///< folded: parts of the title or of the file name, all of them
  std::vector<std::u16string> folders;  ///< folded: parts of the path of the folder, all of them
  std::vector<BankTag> tags;            ///< all of them
  std::optional<bool> hasTags;
  std::optional<bool> hasFiles;
  std::optional<bool> hasKey;
  std::optional<std::int64_t> writtenFrom;    ///< of the exam file, nanoseconds since 1970
  std::optional<std::int64_t> writtenBefore;  ///< likewise; this moment not included
  std::optional<ScoreBounds> score;

  bool IsEmpty() const { return *this == BankQuery(); }
  friend bool operator==(const BankQuery&, const BankQuery&) = default;
};

/// What follows in a longer text, such as one pasted by mistake, is not read.
constexpr std::size_t kMostQueryUnits = 1000;

/// Reads what a user types:
///
///     word "some words" -word -"some words"
///     kind:choice kind:fillin kind:essay kind:oral     several: any of them
///     exam:biology exam:"term 2" folder:2024
///     has:files has:key has:tags -has:files -has:key -has:tags
///     tag:mitosis tag:"cell wall" tag:class:8b -tag:easy
///     after:2024-08-01 before:2025 before:2025-02      days of the file's last change; "after" includes its
///     day score:2 score:>2 score:>=2 score:<3 score:1-2.5
///
/// Whatever the text is, it is a query: what looks like a filter and is none is looked for as text. With
/// `isTyping` the last word, unless a blank follows it, may go on, and a filter without a value is passed
/// over. `words` are those of filters in other languages.
BankQuery ParseBankQuery(std::u16string_view text, bool isTyping = false, const QueryWords& words = {});

}  // namespace quorvantis
