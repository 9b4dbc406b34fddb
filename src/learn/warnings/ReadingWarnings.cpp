// SPDX-License-Identifier: MIT
#include "learn/warnings/ReadingWarnings.h"

#include "import/labels/LineText.h"
#include "import/labels/OptionSequence.h"
#include "import/marking/ImportMarkers.h"
#include "import/prepare/KeyReports.h"
#include "import/prepare/StepNames.h"
#include "learn/reading/PaperNumbers.h"
#include "learn/reading/ReadingRoles.h"
#include "learn/warnings/KeysBehindQuestions.h"
#include "learn/warnings/KeysShownAlike.h"
#include "learn/warnings/UnkeptObjects.h"
#include "learn/warnings/VisibleKey.h"
#include "model/AnswerLetters.h"
#include "model/ExamFields.h"
#include "platform/texts/LearnTexts.h"
#include "platform/texts/StudioTexts.h"
#include "text/AsciiCase.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>
#include <map>

namespace quorvantis {
namespace {

using Kind = ReadingWarning::Kind;

constexpr std::u16string_view kAnyBlank = u" \t\r\n\v\f\u00A0\u3000";

constexpr std::u16string_view kAroundLetters =
    u" \t\r\n\v\f\u00A0\u3000.,;:/&+()[]\u3001\uFF0C\uFF0E\uFF1B\u3002\uFF08\uFF09\u3010\u3011";

bool IsEmptyText(std::u16string_view text) {
  return text.find_first_not_of(kAnyBlank) == text.npos;
}

/// In one line, short.
std::u16string Excerpt(std::u16string_view text, std::size_t enough = 60) {
  const std::size_t begin = std::min(text.find_first_not_of(kAnyBlank), text.size());
  std::u16string excerpt(text.substr(begin, enough));
  if (text.size() - begin > enough) excerpt += u'\u2026';
  std::ranges::replace_if(
      excerpt, [](char16_t unit) { return unit < u' ' || IsLineEnd(unit); }, u' ');
  excerpt.erase(excerpt.find_last_not_of(kAnyBlank) + 1);
  return excerpt;
}

/// Looks at one reading.
class WarningSearch {
 public:
  WarningSearch(const Paper& paper, const ImportSettings& rules, const PaperReading& reading)
      : paper_(paper),
        rules_(rules),
        marked_(reading.marked.text),
        reading_(reading),
        questions_(reading.paper.questions) {}

  std::vector<ReadingWarning> Warnings() {
    for (const DroppedPart& part : reading_.paper.dropped) Add({Kind::NotRead, -1, 0, part.text});
    if (questions_.size() > static_cast<std::size_t>(kMaxQuestions))
      Add({Kind::TooManyQuestions, -1, static_cast<int>(questions_.size())});
    LookAtTheRest();
    LookAtNumbers();
    LookAtKeyAtEnd();
    LookAtUnclearKeys();
    usual_ = UsualOptions();
    hasKeys_ = std::ranges::any_of(questions_, [](const ReadQuestion& question) {
      return question.kind == ReadKind::Choice && !question.letters.empty();
    });
    shown_ = KeysShownAlike(questions_);
    LookBehindTheQuestions();
    for (std::size_t i = 0; i < questions_.size(); ++i) LookAt(questions_[i], static_cast<int>(i));
    std::ranges::stable_sort(warnings_, {}, &ReadingWarning::question);
    return std::move(warnings_);
  }

 private:
  void Add(ReadingWarning warning) { warnings_.push_back(std::move(warning)); }

  static int OptionsOf(const ReadQuestion& question) {
    return static_cast<int>(std::ranges::count_if(
        question.options, [](const std::u16string& option) { return !IsEmptyText(option); }));
  }

  /// The number of options that more than half of the choice questions have; 0 if there is none.
  int UsualOptions() const {
    std::map<int, std::size_t> counts;
    std::size_t all = 0;
    for (const ReadQuestion& question : questions_) {
      if (question.kind != ReadKind::Choice) continue;
      ++counts[OptionsOf(question)];
      ++all;
    }
    for (const auto& [options, count] : counts) {
      if (2 * count > all) return options;
    }
    return 0;
  }

  /// What became no question, but has options as questions have.
  void LookAtTheRest() {
    const std::u16string_view source = paper_.source.characters;
    TextSpan rest{};
    const auto look = [&] {
      constexpr std::size_t kEnoughToSee = 4'000;
      const TextSpan seen = Trimmed(source, {rest.begin, std::min(rest.end, rest.begin + kEnoughToSee)});
      if (HasQuestionsOptions(source, seen)) Add({Kind::NotRead, -1, 0, Excerpt(seen.Of(source))});
    };
    for (const RolePart& part : RolesOf(paper_, reading_)) {
      const bool isRest =
          part.role == PaperRole::NotExam || part.role == PaperRole::Heading || part.role == PaperRole::None;
      if (isRest && rest.end == part.span.begin) {
        rest.end = part.span.end;
        continue;
      }
      look();
      rest = isRest ? part.span : TextSpan{part.span.end, part.span.end};
    }
    look();
  }

  static bool HasQuestionsOptions(std::u16string_view text, TextSpan span) {
    constexpr std::size_t kFewest = 3;
    const auto options = FindOptions(text, span);
    return options && options->LineStarts() >= kFewest &&
           !OptionAlphabets()[options->alphabet].numbersStatements;
  }

  /// Papers number each part from one, so smaller numbers are right, and so are far larger ones.
  void LookAtNumbers() {
    constexpr int kLargestGap = 20;
    int last = 0;
    int lastQuestion = -1;
    for (const PaperNumber& number : NumbersOf(paper_, reading_)) {
      if (number.value == 0 || number.question < 0) continue;
      const int step = number.value - last;
      if (last > 0 && step == 0) Add({Kind::NumberAgain, number.question, number.value});
      // A step may have put a number in.
      const bool isMissing = step > 1 && number.question - lastQuestion < step;
      // A paper may begin with a far larger number, but hardly with 2.
      const bool isFirstMissing = last == 0 && number.value == 2 && number.question == 0;
      if ((last > 0 && isMissing && step <= kLargestGap) || isFirstMissing)
        Add({Kind::NumberMissing, number.question, last + 1});
      last = number.value;
      lastQuestion = number.question;
    }
  }

  bool Uses(std::u16string_view step) const {
    return std::ranges::any_of(
        rules_.prepare, [step](const std::u16string& name) { return EqualsIgnoringAsciiCase(name, step); });
  }

  /// The step for it leaves out what is not clear. Without it, or where it finds nothing, a key stays in the
  /// questions, unless the rules say where the answers begin.
  void LookAtKeyAtEnd() {
    const bool isUsed = Uses(step_name::kKeyAtEnd);
    if (!isUsed && !rules_.m_strPreAllAnswer.empty()) return;
    try {
      const KeyAtEndReport report = ReportKeyAtEnd(paper_, rules_, {});
      const bool stays = report.isUnmatched || (report.isFound && !isUsed);
      if (stays || std::ranges::any_of(questions_, ShowsKeyLine)) Add({Kind::KeyUnmatched});
      if (isUsed) TellLeftovers(report);
      for (const KeyConflict& conflict : report.conflicts) {
        if (conflict.question >= questions_.size()) continue;
        Add({Kind::TwoAnswers, static_cast<int>(conflict.question), 0,
             Excerpt(conflict.own) + u" / " + Excerpt(conflict.atEnd)});
      }
    } catch (const ImportFailure&) {
      return;  // the reading has succeeded, so this is for lack of memory alone
    }
  }

  /// Without a heading, the lines of a key may have become questions.
  void LookBehindTheQuestions() {
    auto keys = KeysBehindQuestions(questions_, NumbersOf(paper_, reading_));
    const auto isTold = [](const ReadingWarning& warning) { return warning.kind == Kind::KeyUnmatched; };
    if (!keys.empty() && std::ranges::none_of(warnings_, isTold)) Add({Kind::KeyUnmatched});
    shown_.merge(keys);
  }

  void TellLeftovers(const KeyAtEndReport& report) {
    constexpr std::size_t kMostPieces = 20;
    bool hasExplanation = false;
    std::size_t pieces = 0;
    for (const auto& [leftover, text] : report.leftovers) {
      const bool isExplanation = leftover.kind == KeyLeftover::Kind::Explanation;
      if (isExplanation && hasExplanation) continue;
      hasExplanation = hasExplanation || isExplanation;
      if (++pieces > kMostPieces) return;
      constexpr std::size_t kLong = 200;
      Add({KindOf(leftover.kind), -1, static_cast<int>(leftover.letters), Excerpt(text, kLong),
           static_cast<int>(leftover.questions)});
    }
  }

  static Kind KindOf(KeyLeftover::Kind leftover) {
    switch (leftover) {
      case KeyLeftover::Kind::Explanation:
        return Kind::KeyExplanations;
      case KeyLeftover::Kind::Miscounted:
        return Kind::KeyMiscounted;
      case KeyLeftover::Kind::Unmatched:
        return Kind::KeyLeftOut;
      case KeyLeftover::Kind::Versions:
        return Kind::KeyVersions;
      default:
        return Kind::KeyNotPlaced;
    }
  }

  /// What KeyLetters has taken away because it names no option without doubt.
  void LookAtUnclearKeys() {
    if (!Uses(step_name::kKeyLetters)) return;
    try {
      for (UnclearKey& unclear : KeysNotOptions(paper_, rules_, {})) {
        if (unclear.question < questions_.size() && IsEmptyText(questions_[unclear.question].key))
          unclear_[unclear.question] = std::move(unclear.answer);
      }
    } catch (const ImportFailure&) {
      return;  // as above
    }
  }

  void LookAt(const ReadQuestion& question, int index) {
    if (question.kind == ReadKind::Choice) {
      LookAtOptions(question, index);
      LookAtKey(question, index);
    }
    LookAtAnswers(question, index);
    LookAtObjects(question, index);
    std::u16string visible = VisibleKey(question);
    const auto shown = shown_.find(static_cast<std::size_t>(index));
    if (visible.empty() && shown != shown_.end()) visible = shown->second;
    if (!visible.empty()) Add({Kind::KeyVisible, index, 0, Excerpt(visible)});
    if (IsTooLong(question)) Add({Kind::TooLongText, index});
  }

  void LookAtObjects(const ReadQuestion& question, int index) {
    const UnkeptObjects objects = ObjectsOf(question);
    if (paper_.hasPictures && objects.answerPictures > 0)
      Add({Kind::AnswerPictures, index, objects.answerPictures});
    if (paper_.hasPictures && objects.textPictures > 1)
      Add({Kind::MorePictures, index, objects.textPictures});
    if (paper_.hasFormulas && objects.formulas > 0) Add({Kind::Formulas, index, objects.formulas});
  }

  void LookAtOptions(const ReadQuestion& question, int index) {
    const int count = OptionsOf(question);
    if (HasEmptyOption(question)) Add({Kind::EmptyOption, index});
    const int labels = LabelsOf(question);
    if (labels > static_cast<int>(kOptionCount)) {
      Add({Kind::TooManyOptions, index, labels});
    } else if (count == 1) {
      Add({Kind::OneOption, index, count});
    } else if (usual_ != 0 && count != usual_) {
      Add({Kind::OptionCount, index, count});
    }
  }

  /// One that the rules have found, but that says nothing, or that is skipped.
  static bool HasEmptyOption(const ReadQuestion& question) {
    bool isFollowed = false;
    for (std::size_t i = kOptionCount; i-- > 0;) {
      const bool isEmpty = IsEmptyText(question.options[i]);
      const bool wasFound = question.places.options[i].begin > 0;
      if (isEmpty && (isFollowed || wasFound)) return true;
      isFollowed = isFollowed || !isEmpty;
    }
    return false;
  }

  /// How many labels of options the question has, those included that an exam cannot hold.
  int LabelsOf(const ReadQuestion& question) const {
    const QuestionPlaces& places = question.places;
    std::size_t end = places.part.end;
    if (!places.answer.IsEmpty() && places.part.Contains(places.answer.begin)) end = places.answer.begin;
    const auto options = FindOptions(marked_, {places.part.begin, end});
    return options ? static_cast<int>(options->labels.size()) : 0;
  }

  void LookAtKey(const ReadQuestion& question, int index) {
    const bool saysNothing = IsEmptyText(question.key);
    if (question.letters.empty()) {
      const auto unclear = unclear_.find(static_cast<std::size_t>(index));
      if (!saysNothing || unclear != unclear_.end()) {
        Add({Kind::KeyNotAnOption, index, 0, Excerpt(saysNothing ? unclear->second : question.key)});
      } else if (hasKeys_) {
        Add({Kind::NoKey, index});
      }
      return;
    }
    const bool isOption = std::ranges::all_of(question.letters, [&question](char16_t letter) {
      const auto option = OptionIndex(letter);
      return option && !IsEmptyText(question.options[*option]);
    });
    if (!isOption) Add({Kind::KeyNotAnOption, index, 0, Excerpt(question.key)});
    if (isOption && !SaysOnlyLetters(FirstAnswer(question.key)))
      Add({Kind::KeyUnclear, index, 0, Excerpt(question.key)});
  }

  /// Capital letters of options, and what can stand between and around them.
  static bool SaysOnlyLetters(std::u16string_view key) {
    return std::ranges::all_of(key, [](char16_t unit) {
      return (unit >= u'A' && unit <= u'E') || kAroundLetters.find(unit) != kAroundLetters.npos;
    });
  }

  static std::u16string_view FirstAnswer(std::u16string_view answers) {
    return answers.substr(0, answers.find(kAnswerMarker));
  }

  /// An answer that was brought to the question, or that of a block, beside its own.
  void LookAtAnswers(const ReadQuestion& question, int index) {
    const QuestionPlaces& places = question.places;
    const std::u16string_view part = places.part.Of(marked_);
    const std::size_t own = part.find(kAnswerMarker);
    if (own == part.npos) return;
    const std::u16string_view ownAnswers = part.substr(own + kAnswerMarker.size());
    const std::u16string_view first = FirstAnswer(ownAnswers);
    std::u16string_view second;
    if (first.size() < ownAnswers.size()) {
      second = FirstAnswer(ownAnswers.substr(first.size() + kAnswerMarker.size()));
    } else if (!places.part.Contains(places.answer.begin)) {
      second = places.answer.Of(marked_);
    }
    if (IsEmptyText(first) || IsEmptyText(second)) return;
    if (Essence(first, question.kind) == Essence(second, question.kind)) return;
    Add({Kind::TwoAnswers, index, 0, Excerpt(first) + u" / " + Excerpt(second)});
  }

  /// What must be the same in two answers.
  static std::u16string Essence(std::u16string_view answer, ReadKind kind) {
    std::u16string essence;
    for (const char16_t unit : answer) {
      const bool counts =
          kind == ReadKind::Choice ? unit >= u'A' && unit <= u'E' : kAnyBlank.find(unit) == kAnyBlank.npos;
      if (counts) essence += unit;
    }
    return essence;
  }

  static bool IsTooLong(const ReadQuestion& question) {
    const auto limit = [](ExamFieldName name) { return FieldNamed(name).limit; };
    const auto answer =
        question.kind == ReadKind::FillIn ? ExamFieldName::FillInAnswer : ExamFieldName::EssayAnswer;
    const std::size_t option = limit(ExamFieldName::Options);
    return question.text.size() > limit(ExamFieldName::QuestionText) ||
           question.answer.size() > limit(answer) ||
           std::ranges::any_of(question.options,
                               [&](const std::u16string& text) { return text.size() > option; });
  }

  const Paper& paper_;
  const ImportSettings& rules_;
  std::u16string_view marked_;
  const PaperReading& reading_;
  const std::vector<ReadQuestion>& questions_;
  int usual_ = 0;
  bool hasKeys_ = false;
  std::map<std::size_t, std::u16string> unclear_;  ///< by question
  std::map<std::size_t, std::u16string> shown_;    ///< the same
  std::vector<ReadingWarning> warnings_;
};

struct KindText {
  Kind kind;
  int text;
};

constexpr std::array kKindTexts = {
    KindText{Kind::NoKey, text_id::kWarnNoKey},
    KindText{Kind::OptionCount, text_id::kWarnOptionCount},
    KindText{Kind::OneOption, text_id::kWarnOneOption},
    KindText{Kind::EmptyOption, text_id::kWarnEmptyOption},
    KindText{Kind::TooManyOptions, text_id::kWarnTooManyOptions},
    KindText{Kind::AnswerPictures, text_id::kWarnAnswerPictures},
    KindText{Kind::MorePictures, text_id::kWarnMorePictures},
    KindText{Kind::Formulas, text_id::kWarnFormulas},
    KindText{Kind::NumberMissing, text_id::kWarnNumberMissing},
    KindText{Kind::NumberAgain, text_id::kWarnNumberAgain},
    KindText{Kind::KeyNotAnOption, text_id::kWarnKeyNotAnOption},
    KindText{Kind::KeyUnclear, text_id::kWarnKeyUnclear},
    KindText{Kind::KeyVisible, text_id::kWarnKeyVisible},
    KindText{Kind::TooLongText, text_id::kWarnTooLongText},
    KindText{Kind::TwoAnswers, text_id::kWarnTwoAnswers},
    KindText{Kind::NotRead, text_id::kWarnNotRead},
    KindText{Kind::KeyUnmatched, text_id::kWarnKeyUnmatched},
    KindText{Kind::TooManyQuestions, text_id::kWarnTooManyQuestions},
    KindText{Kind::KeyMiscounted, text_id::kWarnKeyMiscounted},
    KindText{Kind::KeyVersions, text_id::kWarnKeyVersions},
    KindText{Kind::KeyLeftOut, text_id::kWarnKeyLeftOut},
    KindText{Kind::KeyNotPlaced, text_id::kWarnKeyNotPlaced},
    KindText{Kind::KeyExplanations, text_id::kWarnKeyExplanations},
};

bool IsOfWholeKey(Kind kind) {
  return kind == Kind::KeyVersions || kind == Kind::KeyLeftOut || kind == Kind::KeyNotPlaced ||
         kind == Kind::KeyExplanations;
}

}  // namespace

std::vector<ReadingWarning> WarningsOf(const Paper& paper, const ImportSettings& rules,
                                       const PaperReading& reading) {
  if (reading.HasFailed()) return {};
  return WarningSearch(paper, rules, reading).Warnings();
}

std::u16string WarningText(const ReadingWarning& warning, const StringTable& strings, int first) {
  const auto* found = std::ranges::find(kKindTexts, warning.kind, &KindText::kind);
  const std::u16string format = strings.Text(found->text);
  const std::u16string number = FormatInteger(warning.number);
  if (warning.kind == Kind::KeyMiscounted)
    return FillMessage(format, {warning.text, number, FormatInteger(warning.questions)});
  if (warning.kind == Kind::NotRead || IsOfWholeKey(warning.kind)) return FillMessage(format, {warning.text});
  if (warning.kind == Kind::TooManyQuestions) return FillMessage(format, {number});
  const std::u16string question = FormatInteger(warning.question + first);
  return FillMessage(format, {question, warning.text.empty() ? number : warning.text});
}

}  // namespace quorvantis
