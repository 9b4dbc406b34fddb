// SPDX-License-Identifier: MIT
// What the text of a question says of other questions, of pictures, and that it asks for the opposite. In the
// commonest languages of schools; others are not recognised.
#pragma once

#include "text/TextSpan.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The numbers of questions that a text names: 3 for "see question 3" and "第3题", 3 to 5 for "questions
/// 3-5". In the order of the text, each once, 1 to 500.
std::vector<int> NamedQuestions(std::u16string_view text);

/// "The picture above", "the previous question", "上题", "النص أعلاه": means nothing without what stands
/// before.
bool FollowsOn(std::u16string_view text);

/// "See the picture", "the graph below", "如图", "im Bild": wants a picture to be seen.
bool MentionsPicture(std::u16string_view text);

/// The first word that turns a question round: "not", "except", "nicht", "不", "ليس". Its place is in the
/// original text, in UTF-16 units. Words are taken as they are; whether they stand out is not looked at.
std::optional<TextSpan> FindNegation(std::u16string_view text);

}  // namespace quorvantis
