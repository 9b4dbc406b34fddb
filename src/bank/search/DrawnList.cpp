// SPDX-License-Identifier: MIT
#include "bank/search/DrawnList.h"

#include "bank/draw/DrawQuestions.h"
#include "bank/search/BankMemory.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kTries = 3;  // while exams are being read again

ComparedAt ComparedOf(const DrawableQuestions& drawable) {
  return [&drawable](std::size_t candidate) { return drawable.ComparedAt(candidate); };
}

/// Nothing if its exam has been read again since.
std::optional<DrawnRow> RowOf(const DrawableQuestions& drawable, const DrawnQuestion& drawn) {
  auto question = drawable.Question(drawn.candidate);
  const auto last = drawable.Question(drawn.lastUsedIn);
  if (!question || !last) return std::nullopt;
  return DrawnRow{std::move(*question), drawn, last->exam.Name(), false};
}

void DrawInto(const DrawableQuestions& drawable, const std::function<bool()>& isCancelled, DrawnList& list) {
  DrawOutcome outcome =
      DrawQuestions(drawable.Candidates(), list.order.request, ComparedOf(drawable), isCancelled);
  list.isCancelled = outcome.isCancelled;
  list.wishes = std::move(outcome.wishes);
  list.rows.reserve(outcome.questions.size());
  for (const DrawnQuestion& drawn : outcome.questions) {
    auto row = RowOf(drawable, drawn);
    list.hasChanged = list.hasChanged || !row;
    if (row) list.rows.push_back(std::move(*row));
  }
  if (list.hasChanged) list.rows.clear();
}

DrawnList DrawOnce(BankIndex& index, Files& files, const DrawOrder& order,
                   const std::function<bool()>& isCancelled) {
  DrawnList list{order, {}, {}, {}, {}, false, false};
  try {
    const DrawableQuestions drawable(index, files, order.folder);
    list.problem = drawable.Problem();
    list.unread = drawable.Unread();
    if (!list.problem.IsAnything()) DrawInto(drawable, isCancelled, list);
  } catch (const DatabaseError& error) {
    list.rows.clear();
    list.problem = index.ProblemAfter(error);
  }
  return list;
}

/// The rows but one as candidates of now. Those that have left the bank become questions of the open exam, so
/// that nothing like them comes either.
std::vector<DrawnQuestion> OthersNow(const DrawnList& list, std::size_t place,
                                     const std::vector<DrawCandidate>& candidates, DrawRequest& request) {
  std::vector<DrawnQuestion> others;
  others.reserve(list.rows.size());
  for (std::size_t i = 0; i < list.rows.size(); ++i) {
    if (i == place) continue;
    const DrawnRow& row = list.rows[i];
    const auto now =
        std::find_if(candidates.begin(), candidates.end(),
                     [&row](const DrawCandidate& candidate) { return candidate.key == row.question.key; });
    if (now == candidates.end()) {
      request.openExam.emplace_back(ContentOfHit(row.question));
    } else {
      others.push_back(row.drawn);
      others.back().candidate = static_cast<std::size_t>(now - candidates.begin());
    }
  }
  return others;
}

}  // namespace

DrawnList DrawFromBank(BankIndex& index, Files& files, const DrawOrder& order,
                       const std::function<bool()>& isCancelled) {
  DrawnList list = DrawOnce(index, files, order, isCancelled);
  for (int i = 1; i < kTries && list.hasChanged; ++i) list = DrawOnce(index, files, order, isCancelled);
  return list;
}

AnotherDrawn DrawAnother(BankIndex& index, Files& files, const DrawnList& list, std::size_t place) {
  AnotherDrawn another;
  DrawRequest request = list.order.request;
  request.rejected.insert(list.rows[place].question.key);
  const std::size_t wish = list.rows[place].drawn.wish;
  try {
    for (int i = 0; i < kTries && !another.row; ++i) {
      const DrawableQuestions drawable(index, files, list.order.folder);
      another.problem = drawable.Problem();
      if (another.problem.IsAnything()) break;
      DrawRequest now = request;
      const auto others = OthersNow(list, place, drawable.Candidates(), now);
      const auto drawn =
          DrawOneMore(drawable.Candidates(), now, others, wish, ComparedOf(drawable), another.outcome);
      if (!drawn) break;
      another.row = RowOf(drawable, *drawn);
    }
  } catch (const DatabaseError& error) {
    another.problem = index.ProblemAfter(error);
  }
  return another;
}

}  // namespace quorvantis
