// SPDX-License-Identifier: MIT
#pragma once

#include "bank/draw/DrawRequest.h"

#include <span>

namespace quorvantis {

/// Draws questions by lot: each different question that a wish allows is equally likely, in however many
/// exams it stands, and no two that are the same (IsSameQuestion) come together. Wishes that share questions
/// are balanced, so that one does not lack what another could do without. The seed and the content of the
/// candidates decide the result, on every machine; the order of the candidates does not.
DrawOutcome DrawQuestions(std::span<const DrawCandidate> candidates, const DrawRequest& request,
                          const ComparedAt& comparedAt, const std::function<bool()>& isCancelled = {});

/// Draws one question more for a wish, beside `kept`, which it is not the same as. `request.wishes` is that
/// of `kept`, too. Add to `request.rejected` each question that the user sends away: that also changes the
/// lot. Nothing if there is none; `outcome` then tells what excluded how many.
std::optional<DrawnQuestion> DrawOneMore(std::span<const DrawCandidate> candidates,
                                         const DrawRequest& request, const std::vector<DrawnQuestion>& kept,
                                         std::size_t wish, const ComparedAt& comparedAt,
                                         WishOutcome& outcome);

/// A wish as several that differ in a tag, such as "difficulty:1", "difficulty:2" and "difficulty:3", with
/// about equally many questions each; the first ones get one more if it does not come out even.
std::vector<DrawWish> SpreadOver(const DrawWish& wish, const std::vector<std::u16string>& tags);

}  // namespace quorvantis
