// SPDX-License-Identifier: MIT
#include "import/keys/OptionMarks.h"
#include "import/keys/QuestionKey.h"
#include "import/prepare/Steps.h"

#include <algorithm>
#include <map>

namespace quorvantis {
namespace {

/// A sign at a place: one way to show a key.
struct SignScheme {
  MarkPlace place = MarkPlace::Before;
  char16_t sign = 0;

  friend auto operator<=>(const SignScheme&, const SignScheme&) = default;  // NOLINT(modernize-use-nullptr)
};

/// Options with the sign of a scheme.
std::vector<std::size_t> SignedOptions(const std::vector<OptionMark>& marks, char16_t sign) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < marks.size(); ++i) {
    if (marks[i].sign == sign) found.push_back(i);
  }
  return found;
}

/// Whether the options without the sign have one that means the opposite, as "-" beside "+".
bool AreOthersSigned(const std::vector<OptionMark>& marks, char16_t sign) {
  return std::ranges::all_of(
      marks, [sign](const OptionMark& mark) { return mark.sign == sign || IsOpposite(mark.sign, sign); });
}

bool IsSignedKey(const std::vector<OptionMark>& marks, char16_t sign) {
  const std::size_t found = SignedOptions(marks, sign).size();
  if (found == 0 || found == marks.size()) return false;
  const bool isCross = MeaningOf(sign) == SignMeaning::Possible && sign != u'+';
  return !isCross || found * 2 <= marks.size();
}

/// How often a scheme marks some options of a question, and how often all.
struct SchemeCount {
  std::size_t keys = 0;
  std::size_t decorated = 0;
  std::size_t paired = 0;  ///< of the keys, those in whose questions all other options are signed, too
};

/// The schemes that a paper uses for its key, the most frequent first.
class SignHabits {
 public:
  SignHabits(std::u16string_view text, const PaperOutline& outline) {
    for (const OutlinedQuestion& question : outline.questions) {
      if (!question.HasOptions()) continue;
      ++choices_;
      for (const MarkPlace place : kMarkPlaces) Count(place, MarksOf(text, question, place));
    }
    for (const auto& [scheme, count] : counts_) {
      if (IsHabit(scheme, count)) schemes_.push_back(scheme);
    }
    std::ranges::stable_sort(schemes_, [this](const SignScheme& one, const SignScheme& other) {
      return counts_[one].keys > counts_[other].keys;
    });
  }

  const std::vector<SignScheme>& Schemes() const { return schemes_; }

 private:
  void Count(MarkPlace place, const std::vector<OptionMark>& marks) {
    std::vector<char16_t> signs;
    for (const OptionMark& mark : marks) {
      const bool isNew = std::ranges::find(signs, mark.sign) == signs.end();
      if (mark.sign != 0 && isNew && MeaningOf(mark.sign) != SignMeaning::None) signs.push_back(mark.sign);
    }
    for (const char16_t sign : signs) {
      SchemeCount& count = counts_[{place, sign}];
      if (SignedOptions(marks, sign).size() == marks.size()) ++count.decorated;
      if (!IsSignedKey(marks, sign)) continue;
      ++count.keys;
      if (AreOthersSigned(marks, sign)) ++count.paired;
    }
  }

  bool IsHabit(const SignScheme& scheme, const SchemeCount& count) const {
    if (count.keys == 0 || count.decorated * 5 > count.keys) return false;
    switch (MeaningOf(scheme.sign)) {
      case SignMeaning::Right:
        return true;
      case SignMeaning::Likely:
        return count.keys * 3 >= choices_;
      default:
        if (scheme.sign == u'+' && count.paired < count.keys) return IsPlusHabit(count);
        return count.keys * 2 >= choices_;
    }
  }

  /// A plus at an option that is not beside a minus at each other one is a key if all questions have one.
  bool IsPlusHabit(const SchemeCount& count) const {
    constexpr std::size_t kFewest = 3;
    return count.keys >= kFewest && count.keys * 10 >= choices_ * 9 && count.decorated == 0;
  }

  std::size_t choices_ = 0;
  std::map<SignScheme, SchemeCount> counts_;
  std::vector<SignScheme> schemes_;
};

/// The key of a question by the first scheme that shows one; takes all signs of the scheme out.
std::vector<std::size_t> TakeSigns(std::u16string_view text, const OutlinedQuestion& question,
                                   const std::vector<SignScheme>& schemes, std::vector<PaperEdit>& edits) {
  for (const SignScheme& scheme : schemes) {
    const std::vector<OptionMark> marks = MarksOf(text, question, scheme.place);
    if (!IsSignedKey(marks, scheme.sign)) continue;
    for (const OptionMark& mark : marks) {
      if (mark.sign != scheme.sign && !IsOpposite(mark.sign, scheme.sign)) continue;
      const bool stays = scheme.place == MarkPlace::Behind;
      edits.push_back({mark.span, stays ? InsertedText(u" ") : PaperText{}});
    }
    return SignedOptions(marks, scheme.sign);
  }
  return {};
}

}  // namespace

void step::SignedKey(PaperText& text, const PreparationContext& context) {
  const PaperOutline outline = OutlineOf(text, context);
  const std::u16string_view characters = text.characters;
  const SignHabits habits(characters, outline);
  if (habits.Schemes().empty()) return;
  std::vector<PaperEdit> edits;
  for (const OutlinedQuestion& question : outline.questions) {
    if (!question.HasOptions()) continue;
    std::vector<PaperEdit> removals;
    const std::vector<std::size_t> key = TakeSigns(characters, question, habits.Schemes(), removals);
    if (key.empty()) continue;
    edits.insert(edits.end(), removals.begin(), removals.end());
    // A question with an answer of its own loses the signs all the same: pupils are not to see them.
    if (!IsUnanswered(characters, question)) continue;
    edits.push_back(AnswerEdit(text, question, question.whole.end, InsertedText(CapitalLetters(key))));
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
