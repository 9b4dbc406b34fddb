// SPDX-License-Identifier: MIT
#include "check/wording/QuestionWording.h"

#include "check/wording/NamedQuestions.h"
#include "check/wording/OptionWording.h"
#include "check/wording/WordedText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// "See the picture", "picture below", "figure 3".
bool IsPictureMeant(const WordedText& text, std::size_t noun) {
  if (text.Is(noun + 1, {WordUse::AfterPicture}) || QuestionNumberOf(text.Word(noun + 1))) return true;
  for (std::size_t back = 1; back <= std::min<std::size_t>(noun, 2); ++back) {
    if (text.Is(noun - back, {WordUse::BeforePicture})) return true;
  }
  return false;
}

bool MentionsPictureIn(const WordedText& text) {
  if (text.Has({WordUse::Picture})) return true;
  if (!text.Has({WordUse::PictureNoun})) return false;
  for (std::size_t i = 0; i < text.WordCount(); ++i) {
    if (text.Is(i, {WordUse::PictureNoun}) && IsPictureMeant(text, i)) return true;
  }
  return false;
}

/// The longest ones at each place.
std::vector<TextSpan> NegationsIn(const WordedText& text) {
  std::vector<TextSpan> found;
  if (!text.Has({WordUse::Negation})) return found;
  for (std::size_t i = 0; i < text.WordCount(); ++i) {
    if (text.Is(i, {WordUse::Negation})) found.push_back(text.Place(i));
  }
  std::size_t end = 0;
  for (const WordedText::FoundPhrase& phrase : text.Phrases()) {
    if (!phrase.uses.Has(WordUse::Negation) || phrase.place.begin < end) continue;
    found.push_back(text.OriginOf(phrase.place));
    end = phrase.place.end;
  }
  std::sort(found.begin(), found.end(),
            [](const TextSpan& a, const TextSpan& b) { return a.begin < b.begin; });
  return found;
}

}  // namespace

QuestionWording WordingOf(std::u16string_view text) {
  const WordedText words(text);
  return {NamedQuestionsIn(words), words.Has({WordUse::FollowsOn}), MentionsPictureIn(words),
          NamesOptionsInText(words), NegationsIn(words)};
}

std::vector<int> NamedQuestions(std::u16string_view text) {
  return NamedQuestionsIn(WordedText(text));
}

bool FollowsOn(std::u16string_view text) {
  return WordedText(text).Has({WordUse::FollowsOn});
}

bool MentionsPicture(std::u16string_view text) {
  return MentionsPictureIn(WordedText(text));
}

}  // namespace quorvantis
