// SPDX-License-Identifier: MIT
#pragma once

#include "learn/PaperLearner.h"
#include "learn/reading/ReadingRoles.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Finds parts and questions by their places in a paper, in a time that does not grow with the paper.
class RoleLookup {
 public:
  RoleLookup() = default;
  /// `roles` must outlive the lookup and stay as they are.
  explicit RoleLookup(const std::vector<RolePart>& roles);

  /// The index of the part at a place of the paper; nothing behind its end.
  std::optional<std::size_t> PartAt(std::size_t place) const;

  PaperRole RoleAt(std::size_t place) const;

  /// The question that a place belongs to, or else the last one that begins before it; -1 for none.
  int QuestionAt(std::size_t place) const;

  /// Where a question stands: from its first part to the last one before the next question. Nothing if there
  /// is no such question.
  std::optional<TextSpan> PlaceOf(int question) const;

 private:
  const std::vector<RolePart>* roles_ = nullptr;
  std::vector<TextSpan> places_;     ///< of the questions, by their index
  std::vector<std::size_t> begins_;  ///< of questions, ascending
  std::vector<int> questions_;       ///< that begin there
};

/// Whether a span, which is trimmed, has already the role that a teacher gives it. A question or an option
/// must begin where the span begins: within one, the role says that another one begins here.
bool IsUnderstoodAs(std::u16string_view paper, const RoleLookup& lookup, TextSpan span, PaperRole role);

/// The index of the mark at a place, its end included; nothing if there is none.
std::optional<std::size_t> MarkAt(const std::vector<PaperMark>& marks, std::size_t place);

/// The same for a part of the paper: the first mark that overlaps it.
std::optional<std::size_t> MarkIn(const std::vector<PaperMark>& marks, TextSpan part);

}  // namespace quorvantis
