// SPDX-License-Identifier: MIT
#include "search/ReplacementPlan.h"

#include "model/FillInAnswers.h"
#include "search/SearchedText.h"
#include "text/LineBreaks.h"

#include <algorithm>
#include <span>

namespace quorvantis {
namespace {

using Replacements = std::span<const PlannedReplacement>;

std::u16string_view HitText(const std::u16string& text, const SearchHit& hit) {
  return std::u16string_view(text).substr(hit.start, hit.length);
}

/// `replacements` are all of the field of `text`.
FieldRewrite RewriteField(const std::u16string& text, Replacements replacements) {
  FieldRewrite rewrite{replacements.front().hit.place, text, {}};
  std::size_t done = 0;
  for (const PlannedReplacement& replacement : replacements) {
    rewrite.after.append(text, done, replacement.hit.start - done);
    rewrite.after += replacement.text;
    done = replacement.hit.start + replacement.hit.length;
  }
  rewrite.after.append(text, done);
  return rewrite;
}

bool IsBlank(std::u16string_view text) {
  return text.find_first_not_of(u' ') == std::u16string_view::npos;
}

std::optional<ReplacementObstacle> FindAnswerObstacle(const FieldRewrite& rewrite) {
  const auto before = FillInAnswersIn(rewrite.before);
  const auto after = FillInAnswersIn(rewrite.after);
  if (before.size() != after.size()) return ReplacementObstacle::OtherAnswers;
  if (after.size() == 1) return std::nullopt;
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (IsBlank(after[i].Of(rewrite.after)) && !IsBlank(before[i].Of(rewrite.before)))
      return ReplacementObstacle::EmptyAnswer;
  }
  return std::nullopt;
}

/// Plans the replacements of one field behind those before it.
class FieldPlanner {
 public:
  FieldPlanner(const TextSearch& search, const ReplacementText& replacement,
               const SearchCancelled& isCancelled)
      : search_(search), replacement_(replacement), isCancelled_(isCancelled) {}

  SearchEnd Plan(const TextPlace& place, const std::u16string& text,
                 std::vector<PlannedReplacement>& replacements) const {
    const std::size_t first = replacements.size();
    const std::u16string_view lineEnd = HasOneLine(place.field) ? u" " : u"\r\n";
    const auto take = [&](const SearchHit& hit, const FoundText& found) {
      replacements.push_back({hit, WithLineEnds(replacement_.For(found), lineEnd), {}});
    };
    const SearchEnd end = SearchPlace(place, text, search_, isCancelled_, take);
    const auto planned = std::span(replacements).subspan(first);
    if (planned.empty()) return end;
    const auto obstacle = FindObstacle(RewriteField(text, planned));
    for (PlannedReplacement& replacement : planned) replacement.obstacle = obstacle;
    return end;
  }

 private:
  const TextSearch& search_;
  const ReplacementText& replacement_;
  const SearchCancelled& isCancelled_;
};

}  // namespace

std::optional<ReplacementObstacle> FindObstacle(const FieldRewrite& rewrite) {
  if (rewrite.place.field == ExamFieldName::AttachmentName) return ReplacementObstacle::FileName;
  const bool fits = rewrite.after.size() <= FieldNamed(rewrite.place.field).limit;
  if (!fits && rewrite.after.size() >= rewrite.before.size()) return ReplacementObstacle::TooLong;
  if (rewrite.place.field == ExamFieldName::FillInAnswer) return FindAnswerObstacle(rewrite);
  return std::nullopt;
}

ReplacementPlan PlanReplacements(const FrameSetExam& exam, const TextSearch& search,
                                 const ReplacementText& replacement, const SearchCancelled& isCancelled) {
  ReplacementPlan plan;
  const FieldPlanner planner(search, replacement, isCancelled);
  VisitTexts(exam, [&](const TextPlace& place, const std::u16string& text) {
    if (plan.end != SearchEnd::Done) return;
    plan.end = planner.Plan(place, text, plan.replacements);
    if (plan.end != SearchEnd::Done) plan.stoppedAt = place;
  });
  const auto same = std::erase_if(plan.replacements, [&](const PlannedReplacement& planned) {
    return planned.text == HitText(*TextAt(exam, planned.hit.place), planned.hit);
  });
  plan.leftSame = same > 0;
  return plan;
}

std::optional<PlannedReplacement> PlanReplacement(const FrameSetExam& exam, const SearchHit& hit,
                                                  const TextSearch& search,
                                                  const ReplacementText& replacement,
                                                  const SearchCancelled& isCancelled) {
  const std::u16string* text = TextAt(exam, hit.place);
  if (text == nullptr) return std::nullopt;
  std::vector<PlannedReplacement> planned;
  const FieldPlanner planner(search, replacement, isCancelled);
  if (planner.Plan(hit.place, *text, planned) != SearchEnd::Done) return std::nullopt;
  const auto found = std::ranges::find(planned, hit, &PlannedReplacement::hit);
  if (found == planned.end()) return std::nullopt;
  // By itself it may fit where all of them do not.
  found->obstacle = FindObstacle(RewriteField(*text, std::span(&*found, 1)));
  return *found;
}

std::vector<FieldRewrite> RewriteFields(const FrameSetExam& exam,
                                        const std::vector<PlannedReplacement>& chosen) {
  std::vector<FieldRewrite> rewrites;
  for (auto begin = chosen.begin(); begin != chosen.end();) {
    const TextPlace& place = begin->hit.place;
    const auto end = std::find_if(begin, chosen.end(),
                                  [&](const PlannedReplacement& other) { return other.hit.place != place; });
    if (const std::u16string* text = TextAt(exam, place))
      rewrites.push_back(RewriteField(*text, Replacements(begin, end)));
    begin = end;
  }
  return rewrites;
}

}  // namespace quorvantis
