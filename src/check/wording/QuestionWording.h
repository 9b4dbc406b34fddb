// SPDX-License-Identifier: MIT
// What the text of a question says of other questions, of pictures, and that it asks for the opposite. In the
// commonest languages of schools; others are not recognised.
#pragma once

#include "text/TextSpan.h"

#include <string_view>
#include <vector>

namespace quorvantis {

/// What there is to say of the wording of a question.
struct QuestionWording {
  /// The numbers of questions that the text names: 3 for "see question 3", "question three", "Q3" and
  /// "第3题", 3 to 5 for "questions 3-5". In the order of the text, each once, 1 to 500.
  std::vector<int> namedQuestions;

  /// "The picture above", "the previous question", "上题", "النص أعلاه": means nothing without what stands
  /// before.
  bool followsOn = false;

  /// "See the picture", "the graph below", "如图", "im Bild": wants a picture to be seen.
  bool mentionsPicture = false;

  /// See NamesOptionsInText.
  bool namesOptions = false;

  /// The words that turn a question round: "not", "except", "nicht", "不", "ليس". In the original text, in
  /// UTF-16 units, in ascending order. Words are taken as they are; whether they stand out is not looked at.
  std::vector<TextSpan> negations;
};

QuestionWording WordingOf(std::u16string_view text);

/// These ask for one part only.
std::vector<int> NamedQuestions(std::u16string_view text);
bool FollowsOn(std::u16string_view text);
bool MentionsPicture(std::u16string_view text);

}  // namespace quorvantis
