// SPDX-License-Identifier: MIT
#pragma once

#include "bank/near/QuestionSketch.h"
#include "likeness/QuestionRelation.h"
#include "model/ExamQuestion.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quorvantis {

/// A question that could be drawn. The same question of several exams is several candidates with one key.
struct DrawCandidate {
  std::string key;  ///< QuestionContentKey
  QuestionKind kind = QuestionKind::Choice;
  std::vector<std::u16string> tags;
  std::optional<std::chrono::sys_days> used;  ///< the day of its exam; nothing if that is not known
  QuestionSketch sketch;
  bool isOffered = true;  ///< otherwise it only tells when the question was used
};

/// So many questions of a kind with some tags.
struct DrawWish {
  std::size_t count = 1;
  std::optional<QuestionKind> kind;         ///< any, if there is none
  std::vector<std::u16string> tags;         ///< the question has all of them; case does not count
  std::vector<std::u16string> withoutTags;  ///< and none of these
};

struct DrawRequest {
  std::vector<DrawWish> wishes;
  /// Questions that an exam of this day or later has, in any exam, do not come.
  std::optional<std::chrono::sys_days> notUsedSince;
  /// Those of the open exam: no question comes that is the same as one of them (IsSameQuestion).
  std::vector<ComparedQuestion> openExam;
  std::set<std::string> rejected;  ///< keys that do not come
  std::uint64_t seed = 0;
};

/// A drawn question.
struct DrawnQuestion {
  std::size_t candidate = 0;   ///< its place in the list; of several with its key the one used last
  std::size_t wish = 0;        ///< the place of the wish that it fulfils
  std::size_t among = 0;       ///< how many different questions could have come for the wish
  std::size_t lastUsedIn = 0;  ///< the candidate used last, offered or not
  std::optional<std::chrono::sys_days> lastUsed;
  std::size_t exams = 0;  ///< how many candidates are this question
};

/// Why a question did not come for a wish; the first that applies. The last two, that it is the same as a
/// drawn one or was drawn for another wish, are told for wishes that lack some.
enum class DrawObstacle { NotOffered, Kind, Tags, UsedSince, Rejected, InOpenExam, NearlyDrawn, OtherWish };

/// What became of a wish.
struct WishOutcome {
  std::size_t drawn = 0;
  std::size_t allowed = 0;                       ///< different questions that no condition excluded
  std::map<DrawObstacle, std::size_t> excluded;  ///< how many different questions each condition excluded
};

struct DrawOutcome {
  std::vector<DrawnQuestion> questions;  ///< by wish, within a wish in random order
  std::vector<WishOutcome> wishes;
  bool isCancelled = false;  ///< then nothing was drawn
};

/// The texts of a candidate, made ready to be compared. Called for few candidates.
using ComparedAt = std::function<ComparedQuestion(std::size_t candidate)>;

}  // namespace quorvantis
