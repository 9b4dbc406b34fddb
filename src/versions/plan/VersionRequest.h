// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamLimits.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace quorvantis {

/// The most versions of one exam: they are called A to Z.
inline constexpr std::size_t kMaxVersions = 26;

/// How far questions move. Each keeps its score in every case.
enum class QuestionMoves {
  None,
  Neighbours,   ///< among adjacent questions of the same kind and score
  WithinKind,   ///< among all questions of their kind
  WithinScore,  ///< among all questions of their score
  WithinKindAndScore,
  All,
};

/// An option of a question.
struct OptionOfQuestion {
  int question = 0;        ///< 1 to 500
  std::size_t option = 0;  ///< 0 for A to 4 for E

  auto operator<=>(const OptionOfQuestion&) const = default;  // NOLINT(modernize-use-nullptr): there is none
};

/// What the teacher wants to keep its place in every version.
struct TeacherPins {
  std::set<int> questions;
  std::set<OptionOfQuestion> options;

  bool operator==(const TeacherPins&) const = default;
};

/// What versions to make of an exam. It decides everything: the same exam and request give the same versions.
struct VersionRequest {
  std::vector<std::u16string> names;  ///< one for each version; see VersionNames.h
  std::uint64_t seed = 0;
  QuestionMoves moves = QuestionMoves::Neighbours;
  bool movesOptions = true;
  TeacherPins pins = {};

  bool operator==(const VersionRequest&) const = default;
};

}  // namespace quorvantis
