// SPDX-License-Identifier: MIT
#pragma once

#include "likeness/QuestionContent.h"
#include "likeness/Shingles.h"

#include <string>
#include <vector>

namespace quorvantis {

/// What one question is to another.
enum class QuestionRelation {
  Equal,         ///< the same text, options in any order, and files; case, punctuation and markup apart
  NearlyEqual,   ///< the same question in slightly other words, or with an option changed
  OtherNumbers,  ///< alike, but with other numbers in the text: the same exercise calculated anew
  OtherFiles,    ///< alike, but with other files: "What does the picture show?"
  OtherOptions,  ///< alike because of its text; the options are others
  OtherText,     ///< alike because of its options or of a passage above several questions
  Different,
};

/// Whether a teacher would say that it is the same question.
constexpr bool IsSameQuestion(QuestionRelation relation) {
  return relation == QuestionRelation::Equal || relation == QuestionRelation::NearlyEqual;
}

/// Whether it is another question, but made from the same one, perhaps for pupils to practise.
constexpr bool IsVariant(QuestionRelation relation) {
  return relation == QuestionRelation::OtherNumbers || relation == QuestionRelation::OtherFiles ||
         relation == QuestionRelation::OtherOptions;
}

/// From this share of common shingles on two questions are alike; those below are different.
inline constexpr double kAlike = 0.8;

/// The shingles of the text and the options of a question: by them two questions are alike. A question with
/// neither, such as one whose text is a picture, is known by its files. Without anything: empty; such a
/// question is not like any other. Answers do not count: the question remains the same when a key is
/// corrected.
Shingles ShinglesOf(const QuestionContent& content);

/// A question made ready to be compared with others. Holds copies of its texts.
class ComparedQuestion {
 public:
  explicit ComparedQuestion(const QuestionContent& content);

  const Shingles& All() const { return all_; }

  /// The one definition of what is nearly the same question. Symmetric.
  friend QuestionRelation RelationOf(const ComparedQuestion& a, const ComparedQuestion& b);

 private:
  bool HasLikeText(const ComparedQuestion& other) const;

  std::u16string text_;                  ///< as written, lines ended by LF
  std::u16string normalised_;            ///< of the text
  std::u16string digits_;                ///< the numbers of the text
  std::vector<std::u16string> options_;  ///< normalised, sorted
  std::vector<std::u16string> files_;    ///< sorted
  Shingles ofText_;
  Shingles ofOptions_;
  Shingles all_;
};

QuestionRelation RelationOf(const ComparedQuestion& a, const ComparedQuestion& b);

}  // namespace quorvantis
