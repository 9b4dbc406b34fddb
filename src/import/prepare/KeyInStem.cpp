// SPDX-License-Identifier: MIT
#include "import/keys/BlankPlaces.h"
#include "import/keys/BracketedKey.h"
#include "import/keys/OptionKey.h"
#include "import/keys/QuestionKey.h"
#include "import/keys/ShownAnswer.h"
#include "import/labels/LineText.h"
#include "import/labels/Numerals.h"
#include "import/lines/JudgementWords.h"
#include "import/prepare/Steps.h"

#include <algorithm>
#include <array>

namespace quorvantis {
namespace {

/// Where in or around a question its key stands.
enum class StemKeyPlace { Labelled, InStem, BehindOptions, BareLine, Judgement, JudgementAtEnd };
constexpr std::size_t kStemKeyPlaces = 6;

bool IsOfJudgements(StemKeyPlace place) {
  return place == StemKeyPlace::Judgement || place == StemKeyPlace::JudgementAtEnd;
}

/// A key that a question shows to pupils.
struct StemKey {
  StemKeyPlace place = StemKeyPlace::InStem;
  TextSpan whole;                      ///< what goes
  std::u16string stays{};              ///< what pupils get instead
  TextSpan answer;                     ///< the letters as they are written, within `whole`
  std::vector<std::size_t> options{};  ///< their indices; empty for a judgement
};

/// Finds the keys of one question.
class StemKeySearch {
 public:
  StemKeySearch(std::u16string_view text, const OutlinedQuestion& question)
      : text_(text), question_(question) {}

  std::optional<StemKey> Find(StemKeyPlace place) const {
    if (place == StemKeyPlace::Labelled) return Labelled();
    if (question_.HasOptions() == IsOfJudgements(place)) return std::nullopt;
    switch (place) {
      case StemKeyPlace::InStem:
        return InStem();
      case StemKeyPlace::BehindOptions:
        return BehindOptions();
      case StemKeyPlace::BareLine:
        return BareLine();
      case StemKeyPlace::Judgement:
        return Judgement();
      default:
        return JudgementAtEnd();
    }
  }

 private:
  StemKey KeyOf(StemKeyPlace place, const BracketedText& pair,
                const std::vector<std::size_t>& options) const {
    const bool stays = place == StemKeyPlace::InStem || place == StemKeyPlace::Judgement;
    return {place, pair.whole, stays ? pair.Emptied(text_) : std::u16string(), pair.inner, options};
  }

  /// "(Answer: B)"
  std::optional<StemKey> Labelled() const {
    const std::size_t end = question_.HasAnswer() ? question_.answerLabel.begin : question_.whole.end;
    const auto shown = LabelledAnswerIn(text_, {question_.label.end, end});
    if (!shown) return std::nullopt;
    StemKey key{StemKeyPlace::Labelled, shown->whole, {}, shown->answer, {}};
    if (!question_.HasOptions()) return key;
    key.options = ReadOptionKey(text_, *question_.options, shown->answer.Of(text_)).options;
    if (key.options.empty()) return std::nullopt;
    return key;
  }

  /// The only pair in the stem that holds letters; an empty one beside it is the blank that is meant.
  std::optional<StemKey> InStem() const {
    std::optional<StemKey> found;
    bool isBlank = false;
    for (const BracketedText& pair : BracketedWithin(text_, question_.stem)) {
      if (pair.inner.IsEmpty()) return std::nullopt;
      // "(A) or (B)" asks for one of them; "vitamin (C)" is a name.
      const auto options = OptionsNamedAlone(pair.inner.Of(text_), *question_.options);
      if (options.empty()) continue;
      if (found) return std::nullopt;
      found = KeyOf(StemKeyPlace::InStem, pair, options);
      isBlank = StandsAsBlank(text_, question_.stem, pair);
    }
    if (!isBlank) return std::nullopt;
    return found;
  }

  /// "D. Rome [B]"
  std::optional<StemKey> BehindOptions() const {
    const TextSpan line = FirstLineOf(text_, question_.options->labels.back().text);
    const std::vector<BracketedText> pairs = BracketedWithin(text_, line);
    if (pairs.empty() || pairs.back().isUnderscored || pairs.back().whole.end != line.end)
      return std::nullopt;
    const BracketedText& pair = pairs.back();
    if (pair.whole.begin == line.begin || !IsBlank(text_[pair.whole.begin - 1])) return std::nullopt;
    const auto options = OptionsNamedAlone(pair.inner.Of(text_), *question_.options);
    if (options.empty()) return std::nullopt;
    StemKey key = KeyOf(StemKeyPlace::BehindOptions, pair, options);
    while (IsBlank(text_[key.whole.begin - 1])) --key.whole.begin;
    return key;
  }

  /// "(B)" or "B" on a line of its own under the options.
  std::optional<StemKey> BareLine() const {
    const TextSpan last = question_.options->labels.back().text;
    std::optional<StemKey> found;
    const std::vector<TextSpan> lines = LinesOf(text_, last);
    for (std::size_t i = 1; i < lines.size(); ++i) {
      const TextSpan line = Trimmed(text_, lines[i]);
      if (line.IsEmpty()) continue;
      const auto pair = BracketedAt(text_, line.begin, line.end);
      const bool isPair = pair && pair->whole.end == line.end;
      const BracketedText whole = isPair ? *pair : BracketedText{line, line};
      const auto options = OptionsNamedAlone(whole.inner.Of(text_), *question_.options);
      if (options.empty()) continue;
      if (found) return std::nullopt;
      found = KeyOf(StemKeyPlace::BareLine, whole, options);
      found->whole.begin = lines[i - 1].end;
    }
    return found;
  }

  std::optional<StemKey> Judgement() const {
    std::optional<StemKey> found;
    for (const BracketedText& pair : BracketedWithin(text_, question_.stem)) {
      if (!IsJudgement(pair.inner.Of(text_))) continue;
      if (found) return std::nullopt;
      found = KeyOf(StemKeyPlace::Judgement, pair, {});
    }
    return found;
  }

  /// "The sun is a star. – true"
  std::optional<StemKey> JudgementAtEnd() const {
    const auto shown = JudgementAtEndOf(text_, question_.stem);
    if (!shown) return std::nullopt;
    return StemKey{StemKeyPlace::JudgementAtEnd, shown->whole, {}, shown->answer, {}};
  }

  std::u16string_view text_;
  const OutlinedQuestion& question_;
};

/// How often papers show a key in one place.
struct StemKeyCount {
  std::size_t keys = 0;
  bool hasRight = false;  ///< a judgement says "true"
  bool hasWrong = false;

  void Add(const StemKey& key, std::u16string_view text) {
    ++keys;
    if (!IsOfJudgements(key.place)) return;
    for (const JudgementWord& word : JudgementWordsAt(key.answer.Of(text)))
      (word.isRight ? hasRight : hasWrong) = true;
  }
};

/// A paper shows its keys in the same way at many questions; a letter in brackets at one is text.
class StemKeyHabits {
 public:
  StemKeyHabits(std::u16string_view text, const PaperOutline& outline) {
    std::array<StemKeyCount, kStemKeyPlaces> found{};
    std::size_t choices = 0;
    std::size_t others = 0;
    std::size_t answered = 0;
    for (const OutlinedQuestion& question : outline.questions) {
      if (!IsUnanswered(text, question)) {
        answered += question.HasOptions() ? 1 : 0;
        continue;
      }
      ++(question.HasOptions() ? choices : others);
      for (std::size_t place = 0; place < kStemKeyPlaces; ++place) {
        if (const auto key = StemKeySearch(text, question).Find(static_cast<StemKeyPlace>(place)))
          found[place].Add(*key, text);
      }
    }
    const std::size_t bracketed = found[static_cast<std::size_t>(StemKeyPlace::Judgement)].keys;
    for (std::size_t place = 0; place < kStemKeyPlaces; ++place)
      isHabit_[place] = IsHabit(static_cast<StemKeyPlace>(place), found[place], choices, others, bracketed);
    // In a paper that gives its keys in another way, letters in brackets are text.
    constexpr auto kInStem = static_cast<std::size_t>(StemKeyPlace::InStem);
    if (answered > found[kInStem].keys) isHabit_[kInStem] = false;
  }

  std::optional<StemKey> KeyOf(std::u16string_view text, const OutlinedQuestion& question) const {
    for (std::size_t place = 0; place < kStemKeyPlaces; ++place) {
      if (!isHabit_[place]) continue;
      if (auto key = StemKeySearch(text, question).Find(static_cast<StemKeyPlace>(place))) return key;
    }
    return std::nullopt;
  }

 private:
  static bool IsHabit(StemKeyPlace place, const StemKeyCount& count, std::size_t choices, std::size_t others,
                      std::size_t bracketed) {
    if (count.keys == 0) return false;
    switch (place) {
      case StemKeyPlace::Labelled:
        return IsOften(count.keys, choices + others, (choices + others) / 4);
      case StemKeyPlace::Judgement:
        return IsOften(count.keys, others, others / 4);
      case StemKeyPlace::JudgementAtEnd:
        // Statements may end in such a word; they do not all. Those of another part may have it in brackets.
        return count.keys > 1 && count.keys * 5 >= (others - bracketed) * 3 && count.hasRight &&
               count.hasWrong;
      case StemKeyPlace::InStem:
        return IsOften(count.keys, choices, choices / 2);
      default:
        return IsOften(count.keys, choices, choices * 2 / 5);
    }
  }

  static bool IsOften(std::size_t keys, std::size_t of, std::size_t least) {
    return keys >= (of == 1 ? 1 : std::max<std::size_t>(2, least));
  }

  std::array<bool, kStemKeyPlaces> isHabit_{};
};

/// The answer as letters, or as it is written where it is a judgement or no option.
PaperText AnswerFrom(const PaperText& text, TextSpan written, const OutlinedQuestion& question,
                     const std::vector<std::size_t>& options) {
  if (options.empty()) return text.Part(written);
  return KeyAnswer(text, written, *question.options, {options});
}

/// A key before the number of its question: "(B) 1. The capital".
struct KeyBeforeNumber {
  TextSpan removed;  ///< up to the number
  TextSpan answer;
  std::size_t numberAfter = 0;  ///< the place of the number when all such keys are gone
};

/// "T  1." or "B 2.": a capital letter or a sign alone before a number.
std::optional<BracketedText> BareKeyAt(std::u16string_view text, TextSpan line) {
  if (line.Size() < 2 || !IsBlank(text[line.begin + 1])) return std::nullopt;
  const TextSpan key{line.begin, line.begin + 1};
  const char16_t unit = text[line.begin];
  const bool isCapital = unit >= u'A' && unit <= u'E';
  return isCapital || IsJudgement(key.Of(text)) ? std::optional(BracketedText{key, key}) : std::nullopt;
}

std::optional<KeyBeforeNumber> KeyBeforeNumberAt(std::u16string_view text, TextSpan line) {
  const std::size_t begin = SkipBlanks(text, line.begin, line.end);
  auto pair = BracketedAt(text, begin, line.end);
  if (!pair) pair = BareKeyAt(text, {begin, line.end});
  if (!pair || pair->inner.Size() == 0 || pair->inner.Size() > 9) return std::nullopt;
  const std::u16string_view inner = pair->inner.Of(text);
  const bool isLetter =
      !AlphabetLettersOf(inner.front()).empty() && NumeralAt(inner, 0, NumeralKind::Decimal).size == 0;
  if (!isLetter && !IsJudgement(inner)) return std::nullopt;
  const std::size_t number = SkipBlanks(text, pair->whole.end, line.end);
  const std::u16string_view rest = text.substr(number, line.end - number);
  for (const Numeral& numeral : NumeralsAt(rest, 0)) {
    const bool isRoman = numeral.kind == NumeralKind::UpperRoman || numeral.kind == NumeralKind::LowerRoman;
    if (isRoman || numeral.size >= rest.size()) continue;
    if (std::u16string_view(u".)）．、:：").find(rest[numeral.size]) == std::u16string_view::npos) continue;
    return KeyBeforeNumber{{begin, number}, pair->inner, 0};
  }
  return std::nullopt;
}

std::vector<KeyBeforeNumber> KeysBeforeNumbers(std::u16string_view text) {
  std::vector<KeyBeforeNumber> keys;
  std::size_t gone = 0;
  for (const TextSpan& line : LinesOf(text, {0, text.size()})) {
    auto key = KeyBeforeNumberAt(text, line);
    if (!key) continue;
    gone += key->removed.Size();
    key->numberAfter = key->removed.end - gone;
    keys.push_back(*key);
  }
  return keys;
}

/// Moves keys before numbers behind their questions, if most of them name options of these.
void MoveKeysBeforeNumbers(PaperText& text, const PreparationContext& context) {
  const std::vector<KeyBeforeNumber> keys = KeysBeforeNumbers(text.characters);
  if (keys.size() < 2) return;
  PaperText without = text;
  std::vector<PaperEdit> removals;
  removals.reserve(keys.size());
  for (const KeyBeforeNumber& key : keys) removals.push_back({key.removed});
  ApplyEdits(without, std::move(removals));
  const PaperOutline outline = OutlineOf(without, context);
  std::vector<PaperEdit> edits;
  std::size_t fitting = 0;
  auto key = keys.begin();
  for (const OutlinedQuestion& question : outline.questions) {
    while (key != keys.end() && key->numberAfter < question.label.begin) ++key;
    if (key == keys.end()) break;
    if (!question.label.Contains(key->numberAfter) || !IsUnanswered(without.characters, question)) continue;
    const std::u16string_view written = key->answer.Of(text.characters);
    std::vector<std::size_t> options;
    if (question.HasOptions()) options = OptionsNamedAlone(written, *question.options);
    if (!options.empty() || (!question.HasOptions() && IsJudgement(written))) ++fitting;
    // A letter that is no option is kept as an answer: the step about letters tells of it.
    edits.push_back(
        AnswerEdit(without, question, question.whole.end, AnswerFrom(text, key->answer, question, options)));
  }
  if (edits.size() < keys.size() || fitting * 5 < keys.size() * 4) return;
  ApplyEdits(without, std::move(edits));
  text = std::move(without);
}

}  // namespace

void step::KeyInStem(PaperText& text, const PreparationContext& context) {
  MoveKeysBeforeNumbers(text, context);
  const PaperOutline outline = OutlineOf(text, context);
  const std::u16string_view characters = text.characters;
  const StemKeyHabits habits(characters, outline);
  std::vector<PaperEdit> edits;
  for (const OutlinedQuestion& question : outline.questions) {
    if (!IsUnanswered(characters, question)) continue;
    const std::optional<StemKey> key = habits.KeyOf(characters, question);
    if (!key) continue;
    edits.push_back({key->whole, InsertedText(key->stays)});
    PaperEdit answer =
        AnswerEdit(text, question, question.whole.end, AnswerFrom(text, key->answer, question, key->options));
    // What goes may be the very end of the question, where the answer comes.
    if (answer.span.begin < key->whole.end && answer.span.begin > key->whole.begin)
      answer.span = {key->whole.end, key->whole.end};
    edits.push_back(std::move(answer));
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
