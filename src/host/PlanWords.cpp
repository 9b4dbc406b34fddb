// SPDX-License-Identifier: MIT
#include "host/PlanWords.h"

#include <algorithm>
#include <iterator>

namespace quorvantis {
namespace {

template <class Value>
struct WordRow {
  Value value;
  std::string_view word;
};

constexpr WordRow<QuestionMoves> kMoves[] = {
    {QuestionMoves::None, "none"},
    {QuestionMoves::Neighbours, "neighbours"},
    {QuestionMoves::WithinKind, "within-kind"},
    {QuestionMoves::WithinScore, "within-score"},
    {QuestionMoves::WithinKindAndScore, "within-kind-and-score"},
    {QuestionMoves::All, "all"},
};

constexpr WordRow<PinReason> kReasons[] = {
    {PinReason::Teacher, "teacher"},
    {PinReason::NamesQuestion, "names-question"},
    {PinReason::IsNamed, "is-named"},
    {PinReason::FollowsOn, "follows-on"},
    {PinReason::CannotMoveAlong, "tied"},
    {PinReason::Empty, "empty"},
    {PinReason::TeacherOption, "teacher-option"},
    {PinReason::SpeaksOfOthers, "speaks-of-others"},
    {PinReason::NamesLetters, "names-letters"},
    {PinReason::OwnLetters, "own-letters"},
    {PinReason::TooFew, "too-few"},
    {PinReason::OddKey, "odd-key"},
};

template <class Table, class Value>
std::string WordOf(const Table& table, Value value) {
  const auto row = std::ranges::find(table, value, [](const auto& each) { return each.value; });
  return row == std::end(table) ? std::string() : std::string(row->word);
}

template <class Value, class Table>
std::optional<Value> ValueOf(const Table& table, std::string_view word) {
  const auto row = std::ranges::find(table, word, [](const auto& each) { return each.word; });
  return row == std::end(table) ? std::nullopt : std::optional(row->value);
}

}  // namespace

std::string MovesWord(QuestionMoves moves) {
  return WordOf(kMoves, moves);
}

std::optional<QuestionMoves> MovesOfWord(std::string_view word) {
  return ValueOf<QuestionMoves>(kMoves, word);
}

std::string ReasonWord(PinReason reason) {
  return WordOf(kReasons, reason);
}

std::optional<PinReason> ReasonOfWord(std::string_view word) {
  return ValueOf<PinReason>(kReasons, word);
}

}  // namespace quorvantis
