// SPDX-License-Identifier: MIT
#include "import/keys/OptionKey.h"

#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/labels/Numerals.h"
#include "import/lines/AnswerWords.h"
#include "import/lines/FoldedText.h"
#include "text/AsciiCase.h"

#include <algorithm>
#include <optional>
#include <string>

namespace quorvantis {
namespace {

using OptionIndices = std::vector<std::size_t>;

bool IsOneOf(char16_t unit, std::u16string_view units) {
  return units.find(unit) != units.npos;
}

/// The texts of the options, folded, to be compared with answers.
std::vector<std::u16string> FoldedOptions(std::u16string_view text, const OptionSequence& options) {
  std::vector<std::u16string> folded;
  for (const OptionLabel& label : options.labels) {
    TextSpan span = label.text;
    if (&label == &options.labels.back()) span = FirstLineOf(text, span);
    folded.push_back(FoldedCore(span.Of(text)));
  }
  return folded;
}

/// Reads the letters at the begin of an answer.
class KeyLetterScan {
 public:
  KeyLetterScan(const OptionSequence& options, const std::vector<std::u16string>& texts,
                std::u16string_view answer, bool latinLetters)
      : options_(options), texts_(texts), answer_(answer), latinLetters_(latinLetters) {}

  /// Nothing if the answer does not begin with letters of options, or not surely.
  std::optional<OptionIndices> Letters() {
    SkipOpening();
    if (!TakeToken(true)) return std::nullopt;
    while (!isAtExplanation_ && TakeNext()) continue;
    if (isUnsure_ || NamesOtherText()) return std::nullopt;
    std::ranges::sort(found_);
    found_.erase(std::unique(found_.begin(), found_.end()), found_.end());
    return found_;
  }

 private:
  char16_t UnitAt(std::size_t at) const { return at < answer_.size() ? answer_[at] : u'\0'; }
  bool IsEnd(std::size_t at) const { return at >= answer_.size() || IsLineEnd(answer_[at]); }

  void SkipOpening() {
    while (at_ < answer_.size() && (IsBlank(answer_[at_]) || IsOneOf(answer_[at_], u"([（【「『\"'“‘*:：.=")))
      ++at_;
  }

  /// The letters of one token at `at_`, without moving; their end.
  std::size_t ReadRun(OptionIndices& run) const {
    if (const std::size_t word = ReadWord(run); word > 0) return at_ + word;
    std::size_t at = at_;
    while (at < answer_.size()) {
      const std::size_t index = OptionNamed(options_, answer_[at], latinLetters_);
      if (index == options_.labels.size() || std::ranges::find(run, index) != run.end()) break;
      run.push_back(index);
      ++at;
    }
    const bool goesOn = at > at_ && at < answer_.size() && AreInOneWord(answer_[at - 1], answer_[at]);
    if (run.size() > 1 && !CanBeTogether(run)) return at_;
    return goesOn ? at_ : at;
  }

  /// The label of an option that is a word, as "ii" or "الف"; its size, or 0.
  std::size_t ReadWord(OptionIndices& run) const {
    const OptionAlphabet& alphabet = OptionAlphabets()[options_.alphabet];
    const std::u16string_view rest = answer_.substr(std::min(at_, answer_.size()));
    for (std::size_t i = 0; i < options_.labels.size() && !alphabet.words.empty(); ++i) {
      const std::u16string_view word = LabelWordAt(alphabet, i, rest);
      const bool goesOn =
          rest.size() > word.size() && !word.empty() && AreInOneWord(word.back(), rest[word.size()]);
      if (word.empty() || goesOn) continue;
      run.push_back(i);
      return word.size();
    }
    return 0;
  }

  /// "BD" is two letters and "ace" three, but "bad" is a word and "12" a number.
  bool CanBeTogether(const OptionIndices& run) const {
    const char16_t first = answer_[at_];
    if (first >= u'0' && first <= u'9') return false;
    return Folded(first) != first || std::ranges::is_sorted(run);
  }

  /// Takes one token; false, without moving, if there is none.
  bool TakeToken(bool isFirst) {
    OptionIndices run;
    const std::size_t end = ReadRun(run);
    if (end == at_) return false;
    const bool isAlone = run.size() == 1;
    const std::size_t after = SkipBlanks(answer_, end, answer_.size());
    const bool isBeforeWord = after > end && !IsEnd(after) && IsLetterOrDigit(answer_[after]) &&
                              !IsJoined(after) && !IsAlternative(after) && !IsTokenAt(after);
    const bool mayBeWord = isAlone ? MayBeWord(answer_[at_]) : !std::ranges::is_sorted(run);
    if (isBeforeWord && mayBeWord && !IsTextOf(run.front(), after)) {
      if (isFirst) return false;
      isUnsure_ = isUnsure_ || wasJoined_;
      return false;
    }
    found_.insert(found_.end(), run.begin(), run.end());
    isCapital_ = Folded(answer_[at_]) != answer_[at_];
    at_ = end;
    while (at_ < answer_.size() && IsOneOf(answer_[at_], u")]）】」』\"'”’*")) ++at_;
    const std::size_t rest = SkipBlanks(answer_, at_, answer_.size());
    isAtExplanation_ = IsEnd(rest) || (isBeforeWord && !IsJoined(rest)) || IsTextOf(run.back(), rest);
    return true;
  }

  /// Letters that are words of their own in some language.
  static bool MayBeWord(char16_t unit) { return IsOneOf(Folded(unit), u"aeiouyавику"); }

  bool IsTokenAt(std::size_t at) const {
    KeyLetterScan other(options_, texts_, answer_.substr(at), latinLetters_);
    OptionIndices run;
    const std::size_t end = other.ReadRun(run);
    return end > 0 && (at + end >= answer_.size() || !IsBlank(answer_[at + end]) || IsEnd(at + end + 1));
  }

  bool IsJoined(std::size_t at) const { return AndSize(at) > 0; }

  /// The size of a word for "and" at a place. A letter alone, as the Italian "e", is one only in front of
  /// another letter: "A, E" names option E.
  std::size_t AndSize(std::size_t at) const {
    if (at >= answer_.size()) return 0;
    const std::size_t size = AndWordSize(answer_.substr(at));
    const std::size_t next = SkipBlanks(answer_, at + size, answer_.size());
    const bool leads = next > at + size && next < answer_.size() && IsLetterOrDigit(answer_[next]);
    return size == 1 && IsOneOf(Folded(answer_[at]), u"abcdefghij") && !leads ? 0 : size;
  }

  /// "or C", "/ C": that may be one of two right answers, or both.
  bool IsAlternative(std::size_t at) const {
    if (IsEnd(at)) return false;
    const std::size_t size = IsOneOf(answer_[at], u"/／|") ? 1 : OrWordSize(answer_.substr(at));
    if (size == 0) return false;
    const std::size_t next = SkipBlanks(answer_, at + size, answer_.size());
    OptionIndices run;
    return KeyLetterScan(options_, texts_, answer_.substr(next), latinLetters_).ReadRun(run) > 0;
  }

  /// Whether the rest, from `at` on, is or begins with the text of that option.
  bool IsTextOf(std::size_t option, std::size_t at) const {
    const std::u16string rest = FoldedCore(answer_.substr(std::min(at, answer_.size())));
    return !texts_[option].empty() && rest.starts_with(texts_[option]);
  }

  /// Takes what joins two tokens, and the next one.
  bool TakeNext() {
    const std::size_t back = at_;
    std::size_t at = SkipBlanks(answer_, at_, answer_.size());
    wasJoined_ = false;
    if (IsAlternative(at)) {
      isUnsure_ = true;
      return false;
    }
    bool isRange = false;
    const bool isDash = IsOneOf(UnitAt(at), u"-–—") && at < answer_.size();
    const bool isTight = isDash && at == at_;
    if (IsOneOf(UnitAt(at), u",，、;；/&+|") && at < answer_.size()) {
      wasJoined_ = true;
      ++at;
      const std::size_t word = SkipBlanks(answer_, at, answer_.size());
      if (word < answer_.size()) at = word + AndSize(word);
    } else if (isDash || (IsOneOf(UnitAt(at), u"~～至") && at < answer_.size())) {
      isRange = true;
      ++at;
    } else if (AndSize(at) > 0) {
      wasJoined_ = true;
      at += AndSize(at);
    } else if (UnitAt(at) == u'.' && at + 1 < answer_.size() && IsTokenAt(at + 1)) {
      ++at;
    }
    at_ = SkipBlanks(answer_, at, answer_.size());
    while (IsOneOf(UnitAt(at_), u"([（【") && at_ < answer_.size()) ++at_;
    const std::size_t before = found_.size();
    if (TakeListed(isRange)) {
      // "A-C" may be A to C, or A and C.
      isUnsure_ = isUnsure_ || (isDash && found_.back() > found_[before - 1] + 1);
      if (isRange) FillRange(before);
      return true;
    }
    // "A, F" where there is no F, and "A-C because".
    if ((wasJoined_ && IsLoneLetter(at_)) || (isTight && at_ == at && IsLaterLetter())) isUnsure_ = true;
    at_ = back;
    return false;
  }

  bool TakeListed(bool isRange) {
    OptionIndices run;
    const std::size_t end = ReadRun(run);
    if (end == at_) return false;
    const bool isCapital = Folded(answer_[at_]) != answer_[at_];
    const bool hasCase = IsOneOf(Folded(answer_[at_]), u"abcdefghij");
    if (hasCase && isCapital != isCapital_) return false;
    if (isRange && (run.size() != 1 || run.front() <= found_.back() || HasWordBehind(end))) return false;
    if (!wasJoined_ && !isRange && HasWordBehind(end)) return false;
    return TakeToken(false);
  }

  bool HasWordBehind(std::size_t end) const {
    const std::size_t after = SkipBlanks(answer_, end, answer_.size());
    return after > end && !IsEnd(after) && IsLetterOrDigit(answer_[after]) && !IsJoined(after) &&
           !IsAlternative(after) && !IsTokenAt(after);
  }

  bool IsLoneLetter(std::size_t at) const {
    return at < answer_.size() && IsLetterOrDigit(answer_[at]) &&
           (at + 1 == answer_.size() || !AreInOneWord(answer_[at], answer_[at + 1])) &&
           (IsEnd(at + 1) || !IsBlank(answer_[at + 1]));
  }

  /// Whether the letter of an option behind the last one that was found stands there by itself.
  bool IsLaterLetter() const {
    OptionIndices run;
    const std::size_t end = ReadRun(run);
    return end > at_ && run.size() == 1 && run.front() > found_.back() && HasWordBehind(end);
  }

  void FillRange(std::size_t before) {
    const std::size_t first = found_[before - 1];
    const std::size_t last = found_.back();
    for (std::size_t i = first + 1; i < last; ++i) found_.push_back(i);
  }

  /// "c) Rome" although Rome is option B.
  bool NamesOtherText() const {
    if (found_.size() != 1) return false;
    const std::u16string rest = FoldedCore(answer_.substr(at_));
    if (rest.empty() || rest == texts_[found_[0]]) return false;
    return std::ranges::find(texts_, rest) != texts_.end();
  }

  const OptionSequence& options_;
  const std::vector<std::u16string>& texts_;
  std::u16string_view answer_;
  bool latinLetters_;
  std::size_t at_ = 0;
  OptionIndices found_;
  bool isCapital_ = false;
  bool wasJoined_ = false;
  bool isAtExplanation_ = false;
  bool isUnsure_ = false;
};

/// Options that follow the first one, each with its text or alone in a line: "A) Rome; C) Oslo".
void AddFollowing(const std::vector<std::u16string>& texts, std::u16string_view answer,
                  OptionIndices& found) {
  constexpr std::u16string_view kSeparators = u";,，；\r\n\v";
  const std::u16string_view capitals = u"ABCDEFGHIJ";
  for (std::size_t at = answer.find_first_of(kSeparators); at != answer.npos;
       at = answer.find_first_of(kSeparators, at + 1)) {
    const std::size_t letter = std::min(answer.find_first_not_of(u" \t\r\n\v(（", at + 1), answer.size());
    if (letter + 1 >= answer.size() || !IsOneOf(answer[letter + 1], u".)）、:：")) continue;
    const std::size_t option = std::min(capitals.find(AsciiUpper(answer[letter])), texts.size());
    if (option == texts.size() || std::ranges::find(found, option) != found.end()) continue;
    const std::size_t end = std::min(answer.find_first_of(kSeparators, letter), answer.size());
    const std::u16string text = FoldedCore(answer.substr(letter + 2, end - std::min(end, letter + 2)));
    if (text.empty() || text == texts[option]) found.push_back(option);
  }
  std::ranges::sort(found);
}

/// The option whose text the answer is; nothing if none or several are.
std::optional<std::size_t> OptionOfText(const std::vector<std::u16string>& texts,
                                        const std::u16string& answer) {
  const auto found = std::ranges::find(texts, answer);
  if (answer.empty() || found == texts.end()) return std::nullopt;
  if (std::find(found + 1, texts.end(), answer) != texts.end()) return std::nullopt;
  return static_cast<std::size_t>(found - texts.begin());
}

bool BeginsWithWhole(std::u16string_view text, std::u16string_view beginning) {
  return text.starts_with(beginning) &&
         (text.size() == beginning.size() || !AreInOneWord(beginning.back(), text[beginning.size()]) ||
          beginning.back() >= 0x3041);
}

/// The only option that begins with the answer, or that the answer begins with, if long enough to be sure.
std::optional<std::size_t> OptionOfBeginning(const std::vector<std::u16string>& texts,
                                             const std::u16string& answer) {
  std::optional<std::size_t> found;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::size_t least = std::min(texts[i].size(), answer.size());
    const bool isLong = least >= 4 || (least >= 2 && answer.front() >= 0x3041);
    if (!isLong || (!BeginsWithWhole(texts[i], answer) && !BeginsWithWhole(answer, texts[i]))) continue;
    if (found && texts[i].size() <= texts[*found].size() && answer.size() >= texts[*found].size()) continue;
    if (found && answer.size() < texts[i].size()) return std::nullopt;
    found = i;
  }
  return found;
}

/// Numbers of options, "2" or "2, 4", where the labels are letters.
std::optional<OptionIndices> NumbersOf(std::u16string_view answer, std::size_t count) {
  OptionIndices found;
  for (std::size_t at = 0; at < answer.size();) {
    if (IsBlank(answer[at]) || IsOneOf(answer[at], u",，、;；&.)）(（")) {
      ++at;
      continue;
    }
    std::size_t size = 0;
    for (const NumeralKind kind : {NumeralKind::Decimal, NumeralKind::FullWidth, NumeralKind::ArabicIndic,
                                   NumeralKind::Persian, NumeralKind::Devanagari, NumeralKind::Circled}) {
      const Numeral numeral = NumeralAt(answer, at, kind);
      if (numeral.size == 0 || numeral.value < 1 || static_cast<std::size_t>(numeral.value) > count) continue;
      found.push_back(static_cast<std::size_t>(numeral.value) - 1);
      size = numeral.size;
      break;
    }
    if (size == 0) return std::nullopt;
    at += size;
  }
  std::ranges::sort(found);
  found.erase(std::unique(found.begin(), found.end()), found.end());
  if (found.empty()) return std::nullopt;
  return found;
}

/// An answer that is no letter: its text, a number, a word.
OptionIndices ReadOtherKey(const std::vector<std::u16string>& texts, std::u16string_view line) {
  const std::u16string folded = FoldedCore(line);
  std::optional<std::size_t> byText = OptionOfText(texts, folded);
  if (byText) return {*byText};
  if (!folded.empty()) byText = OptionOfBeginning(texts, folded);
  if (const auto numbers = NumbersOf(line, texts.size())) {
    const bool isBeginning =
        !folded.empty() && std::ranges::any_of(texts, [&folded](const std::u16string& text) {
          return BeginsWithWhole(text, folded);
        });
    return isBeginning ? OptionIndices{} : *numbers;
  }
  if (byText) return {*byText};
  const int ordinal = OrdinalIndex(line);
  if (ordinal >= 0 && static_cast<std::size_t>(ordinal) < texts.size())
    return {static_cast<std::size_t>(ordinal)};
  return {};
}

}  // namespace

OptionKey ReadOptionKey(std::u16string_view text, const OptionSequence& options, std::u16string_view answer,
                        bool latinLetters) {
  const std::vector<std::u16string> texts = FoldedOptions(text, options);
  const TextSpan trimmed = Trimmed(answer, {0, answer.size()});
  const std::u16string_view line = FirstLineOf(answer, trimmed).Of(answer);
  const std::optional<std::size_t> byText = OptionOfText(texts, FoldedCore(line));
  const std::u16string_view led = line.substr(AnswerLeadSize(line));
  std::optional<OptionIndices> letters = KeyLetterScan(options, texts, line, latinLetters).Letters();
  if (!letters && led.size() < line.size() && !led.empty())
    letters = KeyLetterScan(options, texts, led, latinLetters).Letters();
  // "AC" may be the letters A and C or the text of an option, a side of a triangle.
  if (letters && letters->size() == 1) AddFollowing(texts, trimmed.Of(answer), *letters);
  if (letters && byText && letters->size() > 1) return {};
  if (letters && byText && line.size() > 2 && *letters != OptionIndices{*byText}) return {{*byText}};
  if (letters) return {*letters};
  if (byText) return {{*byText}};
  OptionIndices found = ReadOtherKey(texts, line);
  if (found.empty() && !led.empty()) found = ReadOtherKey(texts, led);
  return {std::move(found)};
}

PaperText KeyAnswer(const PaperText& text, TextSpan written, const OptionSequence& options,
                    const OptionKey& key) {
  if (IsCyrillic(options)) return text.Part(written);
  return LettersInPlace(text, written, CapitalLetters(key.options));
}

bool IsCyrillic(const OptionSequence& options) {
  const std::u16string_view letters = OptionAlphabets()[options.alphabet].letters;
  return letters.starts_with(u'А') || letters.starts_with(u'а');
}

}  // namespace quorvantis
