// SPDX-License-Identifier: MIT
#include "import/labels/OptionSequence.h"

#include "import/labels/LineText.h"
#include "import/labels/OptionSigns.h"

#include <algorithm>
#include <map>
#include <utility>

namespace quorvantis {
namespace {

/// A place that looks like a label, of one of the alphabets that its letter belongs to.
struct Candidate {
  std::size_t alphabet = 0;
  bool isBracketed = false;
  bool isLoose = false;  ///< might be text: a label only beside others that are written alike
  OptionLabel label;
};

bool Has(std::u16string_view units, char16_t unit) {
  return units.find(unit) != units.npos;
}

/// A letter or digit of an alphabetic script: a label does not begin right after one. Scripts without blanks
/// between words allow it.
bool IsWordUnit(char16_t unit) {
  if (unit < 0x80) return (unit >= u'0' && unit <= u'9') || ((unit | 0x20) >= u'a' && (unit | 0x20) <= u'z');
  return unit >= 0xC0 && unit < 0x2000 && !(unit >= 0x0E00 && unit < 0x0E80);
}

/// Reads one label after the other.
class LabelScan {
 public:
  LabelScan(std::u16string_view text, TextSpan within) : text_(text), within_(within) {}

  std::vector<Candidate> Candidates() {
    const std::u16string_view text = text_.substr(0, within_.end);
    for (std::size_t at = within_.begin; at < within_.end; ++at) {
      const std::vector<AlphabetLabel> labels = AlphabetLabelsAt(text, at);
      for (std::size_t i = 0; i < labels.size(); ++i) {
        const bool isNewSize = std::none_of(labels.data(), labels.data() + i,
                                            [&](const auto& one) { return one.size == labels[i].size; });
        if (isNewSize) Add(at, labels[i].size, labels);
      }
    }
    return std::move(found_);
  }

 private:
  char16_t UnitAt(std::size_t at) const { return at < within_.end ? text_[at] : u'\0'; }

  /// The labels of that size that begin at a place.
  void Add(std::size_t at, std::size_t size, const std::vector<AlphabetLabel>& labels) {
    const bool isSymbol = OptionAlphabets()[labels[0].letter.alphabet].isSymbol;
    OptionLabel label;
    label.letter = {at, at + size};
    label.label = label.letter;
    if (!isSymbol && !FindBrackets(label)) return;
    TakeSign(label);
    const std::size_t begin = label.sign.IsEmpty() ? label.label.begin : label.sign.begin;
    label.beginsLine = BeginsLine(text_, begin);
    if (!label.beginsLine && !isSymbol && !CanStandWithin(label, begin)) return;
    for (const AlphabetLabel& one : labels) {
      if (one.size != size) continue;
      label.index = one.letter.index;
      found_.push_back({one.letter.alphabet, label.open != 0, IsLoose(label), label});
    }
  }

  /// Finds what encloses or ends the label; false if nothing does.
  bool FindBrackets(OptionLabel& label) const {
    const std::size_t at = label.letter.begin;
    const std::size_t behind = label.letter.end;
    const std::size_t after = SkipBlanks(text_, behind, std::min(behind + 1, within_.end));
    const char16_t before = at > within_.begin ? text_[at - 1] : u'\0';
    const bool isOpened = before != 0 && Has(kLabelOpens, before);
    if (!isOpened && before != 0 && IsWordUnit(before)) return false;
    if (Has(kLabelCloses, UnitAt(after)) && UnitAt(after) != 0) {
      if (IsWithinDecimal(at, after)) return false;
      label.close = UnitAt(after);
      label.label.end = after + 1;
      if (isOpened) TakeOpening(label, before);
      // "(a)." and "A.)" end in two marks.
      if (isOpened && Has(u".:、．", UnitAt(after + 1)) && UnitAt(after + 1) != 0) ++label.label.end;
      return true;
    }
    return !isOpened && IsAlone(at, behind, before);
  }

  /// A letter by itself, set off by a tab or by blanks.
  bool IsAlone(std::size_t at, std::size_t behind, char16_t before) const {
    if (StandsAlone(at)) return IsBlank(UnitAt(behind)) && (IsBlank(before) || BeginsLine(text_, at));
    if (!BeginsLine(text_, at)) return IsLetterLabel(at) && UnitAt(behind) == u' ' && IsSetOff(at);
    return UnitAt(behind) == u'\t' || UnitAt(behind) == u'\u3000' ||
           (UnitAt(behind) == u' ' && (UnitAt(behind + 1) == u' ' || IsLetterLabel(at)));
  }

  /// "a dog" at the beginning of a line, and what only a wide gap sets off within one.
  bool IsLoose(const OptionLabel& label) const {
    const std::size_t at = label.letter.begin;
    if (label.close == 0 && label.open == 0 && IsLetterLabel(at))
      return !label.beginsLine || (!IsLatinCapital(at) && UnitAt(label.letter.end) == u' ');
    return !label.beginsLine && label.open == 0 && label.close != 0 && Has(kWeakLabelCloses, label.close);
  }

  /// Whether at least two blanks, or a tab, stand before a place within a line.
  bool IsSetOff(std::size_t at) const {
    if (at == within_.begin || !IsBlank(text_[at - 1])) return false;
    return text_[at - 1] == u'\t' || text_[at - 1] == u'\u3000' ||
           (at - 1 > within_.begin && IsBlank(text_[at - 2]));
  }

  /// Within a line, "2.5" and "1,200" are numbers.
  bool IsWithinDecimal(std::size_t letter, std::size_t mark) const {
    const auto isDigit = [this](std::size_t at) { return UnitAt(at) >= u'0' && UnitAt(at) <= u'9'; };
    return isDigit(letter) && mark == letter + 1 && Has(u".,:", UnitAt(mark)) && isDigit(mark + 1) &&
           !BeginsLine(text_, letter);
  }

  bool StandsAlone(std::size_t at) const {
    const std::vector<AlphabetLetter>& letters = AlphabetLettersOf(text_[at]);
    return std::ranges::any_of(
        letters, [](const AlphabetLetter& letter) { return OptionAlphabets()[letter.alphabet].standsAlone; });
  }

  bool IsLatinCapital(std::size_t at) const { return text_[at] >= u'A' && text_[at] <= u'J'; }

  /// "A Paris" at the start of a line may be a label, if "B Rome" follows; the sequence decides.
  bool IsLetterLabel(std::size_t at) const {
    constexpr char16_t kFirstGreek = 0x0370;
    if (text_[at] < kFirstGreek) return (text_[at] | 0x20) >= u'a' && (text_[at] | 0x20) <= u'j';
    const std::vector<AlphabetLetter>& letters = AlphabetLettersOf(text_[at]);
    return std::ranges::any_of(letters, [](const AlphabetLetter& letter) {
      const OptionAlphabet& alphabet = OptionAlphabets()[letter.alphabet];
      return !alphabet.isSymbol && !alphabet.numbersStatements;
    });
  }

  void TakeOpening(OptionLabel& label, char16_t before) const {
    label.open = before;
    label.label.begin = label.letter.begin - 1;
  }

  void TakeSign(OptionLabel& label) const {
    std::size_t at = label.label.begin;
    while (at > within_.begin && (text_[at - 1] == u' ' || text_[at - 1] == kVariationSelector)) --at;
    const std::size_t end = at;
    if (at > within_.begin && Has(u")]", text_[at - 1]) && at >= within_.begin + 3 &&
        IsOptionSign(text_[at - 2]) && Has(u"([", text_[at - 3])) {
      label.sign = {at - 3, end};
      return;
    }
    while (at > within_.begin && IsOptionSign(text_[at - 1])) --at;
    const bool isSetOff = at == within_.begin || IsBlank(text_[at - 1]) || IsLineEnd(text_[at - 1]);
    if (at < end && end - at <= 3 && isSetOff) label.sign = {at, end};
  }

  /// Within a line a label needs a clear beginning and end.
  bool CanStandWithin(const OptionLabel& label, std::size_t begin) const {
    if (label.close == 0) return StandsAlone(label.letter.begin) || IsSetOff(begin);
    if (Has(kWeakLabelCloses, label.close))
      return label.open != 0 || (IsSetOff(begin) && IsBlank(UnitAt(label.label.end)));
    const char16_t before = begin > within_.begin ? text_[begin - 1] : u'\n';
    // "e.g. A.B." is no label, and neither is the dot of an initial in a name.
    if (label.close == u'.' && IsBlank(before) && UnitAt(label.label.end) == u'\0') return false;
    return !IsWordUnit(before) || label.open != 0;
  }

  std::u16string_view text_;
  TextSpan within_;
  std::vector<Candidate> found_;
};

/// Whether two labels are written alike.
bool AreAlike(const OptionLabel& one, const OptionLabel& other) {
  return one.open == other.open && one.close == other.close;
}

/// The first label of a run: "A" that begins the stem is none if an "A." follows before "B.".
void TakeAlikeFirst(const std::vector<const Candidate*>& labels, std::size_t first,
                    std::vector<OptionLabel>& run) {
  if (run.size() < 2 || AreAlike(run[0], run[1])) return;
  for (std::size_t i = first; i < labels.size() && labels[i]->label.letter.begin < run[1].letter.begin; ++i) {
    if (labels[i]->label.index != 0 || !AreAlike(labels[i]->label, run[1])) continue;
    run[0] = labels[i]->label;
    return;
  }
}

/// Whether a candidate may follow the first one of a run.
bool FitsRun(const Candidate& first, const Candidate& next) {
  return (!first.isLoose && !next.isLoose) || AreAlike(first.label, next.label);
}

/// The longest run through the candidates of one alphabet, each the next letter.
std::vector<OptionLabel> RunFrom(const std::vector<const Candidate*>& labels, std::size_t first) {
  std::vector<OptionLabel> run{labels[first]->label};
  for (std::size_t i = first + 1; i < labels.size(); ++i) {
    const OptionLabel& label = labels[i]->label;
    const bool isNext = label.index == run.size() && label.letter.begin >= run.back().label.end;
    if (isNext && FitsRun(*labels[first], *labels[i])) run.push_back(label);
  }
  TakeAlikeFirst(labels, first, run);
  // Two letters alone are words: "a" and "b" of a text.
  constexpr std::size_t kFewestAlone = 3;
  const bool areWords = labels[first]->isLoose && run[0].close == 0 && run.size() < kFewestAlone;
  return areWords ? std::vector<OptionLabel>() : run;
}

/// Runs whose labels begin lines are options rather than letters of the text.
std::size_t Weight(const OptionSequence& run) {
  constexpr std::size_t kOfLine = 3;
  constexpr std::size_t kOfOther = 1;
  const std::size_t starts = run.LineStarts();
  return starts * kOfLine + (run.labels.size() - starts) * kOfOther;
}

/// An alphabet, and whether its letters have a bracket before them.
using LabelStyle = std::pair<std::size_t, bool>;

/// As many labels of each style as any question has; a text without end is no question.
std::map<LabelStyle, std::vector<const Candidate*>> ByStyle(const std::vector<Candidate>& candidates) {
  constexpr std::size_t kMostLabels = 200;
  std::map<LabelStyle, std::vector<const Candidate*>> labels;
  for (const Candidate& candidate : candidates) {
    std::vector<const Candidate*>& ofStyle = labels[{candidate.alphabet, candidate.isBracketed}];
    if (ofStyle.size() < kMostLabels) ofStyle.push_back(&candidate);
  }
  return labels;
}

void FillTexts(std::u16string_view text, TextSpan within, OptionSequence& run) {
  for (std::size_t i = 0; i < run.labels.size(); ++i) {
    const bool isLast = i + 1 == run.labels.size();
    std::size_t end = within.end;
    if (!isLast) {
      const OptionLabel& next = run.labels[i + 1];
      end = next.sign.IsEmpty() ? next.label.begin : next.sign.begin;
    }
    run.labels[i].text = Trimmed(text, {run.labels[i].label.end, end});
  }
}

}  // namespace

std::size_t OptionSequence::LineStarts() const {
  return static_cast<std::size_t>(std::ranges::count_if(labels, &OptionLabel::beginsLine));
}

std::vector<OptionSequence> FindOptionRuns(std::u16string_view text, TextSpan within) {
  const std::vector<Candidate> candidates = LabelScan(text, within).Candidates();
  std::vector<OptionSequence> runs;
  for (const auto& [style, labels] : ByStyle(candidates)) {
    OptionSequence best{style.first};
    for (std::size_t i = 0; i < labels.size(); ++i) {
      if (labels[i]->label.index != 0) continue;
      OptionSequence run{style.first, RunFrom(labels, i)};
      if (run.labels.size() >= 2 && Weight(run) > Weight(best)) best = std::move(run);
    }
    if (best.labels.size() >= 2) runs.push_back(std::move(best));
  }
  std::ranges::stable_sort(runs, std::greater<>(), Weight);
  for (OptionSequence& run : runs) FillTexts(text, within, run);
  return runs;
}

std::optional<OptionSequence> FindOptions(std::u16string_view text, TextSpan within) {
  std::vector<OptionSequence> runs = FindOptionRuns(text, within);
  if (runs.empty()) return std::nullopt;
  const auto isStatements = [](const OptionSequence& run) {
    return OptionAlphabets()[run.alphabet].numbersStatements;
  };
  if (!isStatements(runs.front())) return std::move(runs.front());
  constexpr std::size_t kFewestBehind = 3;
  const auto behind = std::ranges::find_if(runs, [&](const OptionSequence& run) {
    return !isStatements(run) && run.labels.size() >= kFewestBehind &&
           run.labels.front().label.begin > runs.front().labels.back().label.begin;
  });
  return std::move(behind == runs.end() ? runs.front() : *behind);
}

}  // namespace quorvantis
