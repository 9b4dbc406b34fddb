// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/PaperText.h"
#include "learn/PaperLearner.h"
#include "learn/patterns/NumberFamilies.h"
#include "learn/reading/ReadingRoles.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quorvantis {

/// What marks say about a layout.
class MarkedPlaces {
 public:
  /// Both must outlive this.
  MarkedPlaces(const Paper& paper, const std::vector<PaperMark>& marks) : paper_(paper), marks_(marks) {}

  bool IsEmpty() const { return marks_.empty(); }
  const std::vector<PaperMark>& Marks() const { return marks_; }

  /// Places in `text` of what has a mark of that role.
  std::vector<TextSpan> PlacesIn(const PaperText& text, PaperRole role) const;

  /// The texts with that role.
  std::set<std::u16string> Texts(PaperRole role) const;

  /// The texts in front of marked answers in their lines: labels, unless a question marks its answers
  /// otherwise.
  std::set<std::u16string> TextsBeforeAnswers() const;

  /// Lines behind marked options that a reading has taken for a part of them.
  std::set<std::u16string> LinesBehindOptions(const std::vector<RolePart>& roles) const;

  /// False for a mark that no layout can follow, so that none is better for it.
  bool CanBeFollowed(const PaperMark& mark) const;

  bool IsFollowed(const PaperMark& mark, const std::vector<RolePart>& roles) const;

  /// The share of the marks that a reading follows; 1 without any mark.
  double Followed(const std::vector<RolePart>& roles) const;

  /// The marks that the roles do not follow, by index.
  std::vector<std::size_t> Unfollowed(const std::vector<RolePart>& roles) const;

 private:
  bool GoesOnBehind(const PaperMark& mark, const std::vector<RolePart>& roles) const;
  static bool BelongTogether(std::vector<RolePart>::const_iterator one,
                             std::vector<RolePart>::const_iterator other);

  const Paper& paper_;
  const std::vector<PaperMark>& marks_;
};

}  // namespace quorvantis
