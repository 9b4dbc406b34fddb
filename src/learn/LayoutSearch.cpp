// SPDX-License-Identifier: MIT
#include "learn/LayoutSearch.h"

#include "import/keys/FrontInstructions.h"
#include "import/labels/LineText.h"
#include "import/paper/PreparedLabels.h"
#include "import/prepare/PreparationSteps.h"
#include "import/prepare/StepNames.h"
#include "import/prepare/Steps.h"
#include "learn/MarkedLiterals.h"
#include "learn/patterns/AnswerLabels.h"
#include "learn/patterns/Headings.h"
#include "learn/reading/ReadingRoles.h"
#include "model/ExamLimits.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

/// Steps whose work makes no reading better by itself, but is right wherever they find something to do.
constexpr std::u16string_view kHarmless[] = {step_name::kKeyInStem, step_name::kBlankForms, step_name::kNoise,
                                             step_name::kKeyLetters, step_name::kKeyAtEnd};

bool HasSoftBreaks(const Paper& paper) {
  return std::ranges::count(paper.source.characters, u'\v') > 1;
}

/// Whether the step about blanks has something to do.
bool HasOddSpaces(const Paper& paper) {
  PaperText text = paper.source;
  step::PlainSpaces(text, {paper, {}, {}});
  return text.characters != paper.source.characters;
}

/// Numbers of two families that count together: "1." and "(2)".
bool CountTogether(const NumberFamily& one, const NumberFamily& other) {
  std::vector<std::pair<std::size_t, int>> numbers;
  for (const NumberFamily* family : {&one, &other}) {
    for (const NumberLabel& label : family->labels) numbers.emplace_back(label.place.begin, label.value);
  }
  std::ranges::sort(numbers);
  std::size_t good = 0;
  int before = 0;
  const std::size_t firstOfOther = std::max(one.labels.front().place.begin, other.labels.front().place.begin);
  for (const auto& [place, value] : numbers) {
    good += value == before + 1 || (value == 1 && place == firstOfOther) ? 1 : 0;
    before = value;
  }
  const double share = static_cast<double>(good) / static_cast<double>(numbers.size());
  return share > std::max({one.rising, other.rising, 0.6}) || share > 0.95;
}

/// Numbers that need no other way of telling questions apart.
bool AreNumbersOfQuestions(const NumberFamily& family) {
  constexpr std::size_t kEnough = 3;
  constexpr double kMostlyRising = 0.85;
  return family.labels.size() >= kEnough && family.rising >= kMostlyRising && !family.isSpaced &&
         static_cast<std::size_t>(family.restarts) * kEnough < family.labels.size();
}

/// Lines that a number out of order begins, among others that are in order: "28. June 1919".
std::set<std::u16string> LinesOutOfOrder(std::u16string_view text, const NumberFamily& family) {
  constexpr std::size_t kMostOfThem = 4;
  std::set<std::u16string> lines;
  for (std::size_t i = 1; i + 1 < family.labels.size(); ++i) {
    const int expected = family.labels[i - 1].value + 1;
    if (family.labels[i].value <= expected || family.labels[i + 1].value != expected) continue;
    lines.insert(LineBeginPattern(text, {family.labels[i].place, PaperRole::Question}));
  }
  const bool areFew = lines.size() <= kMostOfThem && lines.size() * 4 <= family.labels.size();
  return areFew ? lines : std::set<std::u16string>();
}

/// Whether several questions have options and nothing before them.
bool BeginWithOptions(std::u16string_view text, const std::vector<TextSpan>& bodies) {
  constexpr std::ptrdiff_t kFewest = 2;
  return std::count_if(bodies.begin(), bodies.end(), [text](const TextSpan& body) {
           const auto options = FindOptions(text, body);
           return options && options->labels.front().label.begin == Trimmed(text, body).begin;
         }) >= kFewest;
}

/// Whether the family has a label that a teacher has marked.
bool Covers(const NumberFamily& family, const TextSpan& mark) {
  return std::ranges::any_of(family.labels,
                             [&mark](const NumberLabel& label) { return label.place.Overlaps(mark); });
}

}  // namespace

TriedLayout LayoutSearch::Search() {
  Steps lines;
  if (HasSoftBreaks(paper_)) lines.emplace(step_name::kSoftBreaks);
  if (HasOddSpaces(paper_)) lines.emplace(step_name::kPlainSpaces);
  lines.emplace(step_name::kMixedLetters);
  lines.emplace(step_name::kAnswerSlips);
  lines.emplace(step_name::kOptionColumns);
  TryNumbers(lines);
  TryNumberedOptions(lines);
  if (!paper_.tables.empty()) {
    lines.emplace(step_name::kTableOptions);
    TryNumbers(lines);
  }
  TryAnswerLabels(LabelKinds::Words);
  TryHeadings();
  TrySteps();
  // "Level: B" is taken for a key only where nothing else can be one.
  constexpr double kFewKeys = 0.5;
  if (best_.score.keys < kFewKeys) {
    TryAnswerLabels(LabelKinds::Others);
    TrySteps();
  }
  TryHeadings();
  TryMarkedPlaces();
  Simplify();
  return std::move(best_);
}

void LayoutSearch::Check() const {
  if (options_.isCancelled && options_.isCancelled())
    throw ImportFailure{ImportFailure::Reason::Cancelled, {}};
}

TriedLayout LayoutSearch::Tried(RuleDraft draft) {
  Check();
  constexpr double kWeightOfMarks = 8;
  TriedLayout tried;
  tried.rules = RulesOf(draft);
  tried.draft = std::move(draft);
  tried.reading = ReadByRules(paper_, tried.rules, options_.isCancelled, &memory_);
  Check();
  tried.score = ScoreOf(paper_, tried.reading, tried.draft.options.alphabets);
  if (!marks_.IsEmpty()) tried.followed = marks_.Followed(RolesOf(paper_, tried.reading));
  tried.total = tried.score.Total() + kWeightOfMarks * tried.followed;
  return tried;
}

bool LayoutSearch::Try(RuleDraft draft, bool orAsGood) {
  TriedLayout tried = Tried(std::move(draft));
  constexpr double kAsGood = 1e-9;
  const bool isBetter =
      tried.total > best_.total + kAsGood || (orAsGood && tried.total > best_.total - kAsGood);
  if (!isBetter || !FitsFile(tried.rules)) return false;
  best_ = std::move(tried);
  return true;
}

PaperText LayoutSearch::Prepared(const RuleDraft& draft) {
  PreparedText prepared = PreparePaper(paper_, RulesOf(draft), options_.isCancelled, &memory_);
  Check();
  return std::move(prepared.text);
}

PaperOutline LayoutSearch::Outline(const PaperText& text, const RuleDraft& draft) {
  return memory_.Outline(text, RulesOf(draft), options_.isCancelled);
}

std::vector<TextSpan> LayoutSearch::Bodies(const PaperText& text, const RuleDraft& draft) {
  std::vector<TextSpan> bodies;
  for (const OutlinedQuestion& question : Outline(text, draft).questions)
    bodies.push_back(
        {question.label.end, question.HasAnswer() ? question.answerLabel.begin : question.whole.end});
  return bodies;
}

/// Numbers of options that only their order tells from those of questions.
void LayoutSearch::TryNumberedOptions(const Steps& steps) {
  RuleDraft plain;
  plain.steps = steps;
  RuleDraft nested = plain;
  nested.steps.emplace(step_name::kNumberedOptions);
  if (Prepared(nested).characters != Prepared(plain).characters) TryNumbers(nested.steps);
}

void LayoutSearch::TryNumbers(const Steps& steps) {
  RuleDraft plain;
  plain.steps = steps;
  const PaperText text = Prepared(plain);
  std::vector<NumberFamily> families = FindNumberFamilies(text.characters);
  const std::vector<TextSpan> marked = marks_.PlacesIn(text, PaperRole::QuestionNumber);
  if (!marked.empty()) {
    std::stable_partition(families.begin(), families.end(), [&marked](const NumberFamily& family) {
      return std::ranges::any_of(marked, [&family](const TextSpan& mark) { return Covers(family, mark); });
    });
  }
  constexpr std::size_t kMostFamilies = 4;
  families.resize(std::min(families.size(), kMostFamilies));
  for (std::size_t i = 0; i < families.size(); ++i) {
    TryFamilies(text, {families[i]}, steps);
    for (std::size_t other = i + 1; other < families.size(); ++other) {
      if (CountTogether(families[i], families[other]))
        TryFamilies(text, {families[i], families[other]}, steps);
    }
  }
  if (text.characters.find(kPreparedOpen) != std::u16string::npos) TryFamilies(text, {}, steps);
  // Few numbers, or none: blank lines and options may tell the questions apart.
  if (!families.empty() && AreNumbersOfQuestions(families.front())) return;
  Steps unnumbered = steps;
  unnumbered.emplace(step_name::kUnnumbered);
  TryFamilies(text, {}, unnumbered);
}

void LayoutSearch::TryFamilies(const PaperText& text, const std::vector<NumberFamily>& numbers,
                               const Steps& steps) {
  RuleDraft draft;
  draft.numbers = numbers;
  draft.steps = steps;
  if (!numbers.empty()) draft.noQuestions = LinesOutOfOrder(text.characters, numbers.front());
  const PaperText numbered = steps.contains(step_name::kUnnumbered) ? Prepared(draft) : text;
  const std::vector<TextSpan> bodies = Bodies(numbered, draft);
  draft.options = FindOptionFamily(numbered.characters, bodies);
  RuleDraft open = draft;
  open.steps.emplace(step_name::kOpenAnswers);
  if (BeginWithOptions(numbered.characters, bodies)) open.steps.emplace(step_name::kClozeStems);
  TryOptions(open);
  if (!numbers.empty()) TryForgottenNumbers(numbered, std::move(open));
  // Answers at the end would be taken for options, or for questions.
  draft.steps.emplace(step_name::kKeyAtEnd);
  const PaperText withoutKey = Prepared(draft);
  if (withoutKey.characters == numbered.characters) return;
  const std::vector<TextSpan> withoutKeys = Bodies(withoutKey, draft);
  draft.options = FindOptionFamily(withoutKey.characters, withoutKeys);
  draft.steps.emplace(step_name::kOpenAnswers);
  if (BeginWithOptions(withoutKey.characters, withoutKeys)) draft.steps.emplace(step_name::kClozeStems);
  TryOptions(draft);
  draft.steps.emplace(step_name::kKeyLetters);
  TryOptions(draft);
  draft.steps.emplace(step_name::kJudgement);
  TryOptions(std::move(draft));
}

/// Questions without a number change which options others have.
void LayoutSearch::TryForgottenNumbers(const PaperText& text, RuleDraft draft) {
  RuleDraft mended = draft;
  mended.steps.erase(std::u16string(step_name::kOpenAnswers));
  mended.steps.erase(std::u16string(step_name::kClozeStems));
  mended.steps.emplace(step_name::kForgottenNumbers);
  const PaperText numbered = Prepared(mended);
  if (numbered.characters == text.characters) return;
  draft.options = FindOptionFamily(numbered.characters, Bodies(numbered, mended));
  draft.steps.emplace(step_name::kForgottenNumbers);
  TryOptions(std::move(draft));
}

void LayoutSearch::TryOptions(RuleDraft draft) {
  if (draft.options.IsEmpty()) {
    Try(draft);
    TryPlainOptions(draft);
    return;
  }
  for (const LabelPlaces places : {LabelPlaces::LineStarts, LabelPlaces::SetOff, LabelPlaces::Anywhere}) {
    draft.optionPlaces = places;
    Try(draft);
    if (draft.options.inLines == 0) break;
  }
  TryPlainOptions(draft);
}

/// Options without labels show only when a step gives them some.
void LayoutSearch::TryPlainOptions(const RuleDraft& draft) {
  RuleDraft plain = draft;
  plain.steps.emplace(step_name::kPlainOptions);
  Try(plain);
  // Boxes that are ticked stay as signs in front of the labels.
  plain.steps.emplace(step_name::kSignedKey);
  Try(std::move(plain));
}

void LayoutSearch::TryAnswerLabels(LabelKinds kinds) {
  const PaperText text = Prepared(best_.draft);
  std::vector<AnswerLabelFamily> families = FindAnswerLabels(text.characters, Bodies(text, best_.draft));
  std::set<std::u16string> marked = marks_.Texts(PaperRole::AnswerLabel);
  marked.merge(marks_.TextsBeforeAnswers());
  if (!marked.empty()) TryLabels(marked, false);
  constexpr std::size_t kMostLabels = 4;
  families.resize(std::min(families.size(), kMostLabels));
  std::set<std::u16string> together = marked;
  for (const AnswerLabelFamily& family : families) {
    constexpr double kSurelyKeys = 0.6;
    const bool isTried =
        kinds == LabelKinds::Words ? family.isWord : !family.isWord && family.keys >= kSurelyKeys;
    if (!isTried) continue;
    TryLabels({family.label}, family.standsWithinLines);
    // "Answer:" and "Ans.:" in one paper.
    together.insert(family.label);
    if (together.size() > 1) TryLabels(together, family.standsWithinLines);
  }
}

void LayoutSearch::TryLabels(const std::set<std::u16string>& labels, bool withinLines) {
  RuleDraft draft = best_.draft;
  draft.answerLabels = labels;
  draft.labelsWithinLines = withinLines;
  Try(draft);
  // Keys in other letters show only as capitals.
  draft.steps.emplace(step_name::kKeyLetters);
  Try(draft);
  draft.steps.emplace(step_name::kJudgement);
  Try(std::move(draft));
}

/// Whether a mark says that one of the first questions is a numbered instruction.
bool LayoutSearch::AreInstructionsMarked(const PaperText& text, const PaperOutline& outline) const {
  const std::size_t count = NumberedInFront(text.characters, outline);
  if (count == 0) return false;
  std::vector<TextSpan> marked = marks_.PlacesIn(text, PaperRole::NotExam);
  for (const TextSpan& heading : marks_.PlacesIn(text, PaperRole::Heading)) marked.push_back(heading);
  const TextSpan first = Trimmed(text.characters, outline.questions.front().label);
  const TextSpan instructions{first.begin, outline.questions[count - 1].label.end};
  return std::any_of(marked.begin(), marked.end(),
                     [&instructions](const TextSpan& mark) { return mark.Overlaps(instructions); });
}

void LayoutSearch::TryHeadings() {
  TryMarkedHeadings();
  const PaperText text = Prepared(best_.draft);
  RuleDraft draft = best_.draft;
  const PaperOutline outline = Outline(text, draft);
  std::vector<HeadingLine> headings =
      FindNumberedInstructions(text, outline, AreInstructionsMarked(text, outline));
  for (HeadingLine& heading : FindHeadings(text, outline)) headings.push_back(std::move(heading));
  for (const HeadingLine& heading : headings) {
    RuleDraft longer = draft;
    longer.headings.insert(heading.pattern);
    // Instructions of many sections may be too long for one rule.
    if (FitsFile(RulesOf(longer))) draft = std::move(longer);
  }
  if (draft.headings == best_.draft.headings) return;
  draft.steps.emplace(step_name::kNoise);
  Try(std::move(draft), true);
}

void LayoutSearch::TryMarkedHeadings() {
  std::set<std::u16string> marked = marks_.LinesBehindOptions(RolesOf(paper_, best_.reading));
  marked.merge(marks_.Texts(PaperRole::Heading));
  marked.merge(marks_.Texts(PaperRole::NotExam));
  RuleDraft draft = best_.draft;
  for (const std::u16string& text : marked) {
    for (const TextSpan& line : LinesOf(text, {0, text.size()}))
      draft.headings.insert(HeadingPattern(Trimmed(text, line).Of(text)));
  }
  if (draft.headings == best_.draft.headings) return;
  draft.steps.emplace(step_name::kNoise);
  if (Try(draft, true)) return;
  // A line that the answers follow at the end of the paper.
  for (const std::u16string& text : marked) {
    draft = best_.draft;
    draft.answersFrom = HeadingPattern(Trimmed(text, {0, LineEndAfter(text, 0)}).Of(text));
    draft.steps.emplace(step_name::kNoise);
    for (const std::u16string_view step :
         {step_name::kNoise, step_name::kKeyAtEnd, step_name::kKeyLetters, step_name::kJudgement}) {
      draft.steps.emplace(step);
      Try(draft);
    }
  }
}

/// What no family explains is true of one place alone: a question that begins with these words.
void LayoutSearch::TryMarkedPlaces() {
  constexpr std::size_t kMostPlaces = 12;
  const std::u16string_view source = paper_.source.characters;
  for (std::size_t i = 0; i < std::min(marks_.Marks().size(), kMostPlaces); ++i) {
    const PaperMark& mark = marks_.Marks()[i];
    const std::vector<RolePart> roles = RolesOf(paper_, best_.reading);
    if (marks_.IsFollowed(mark, roles)) continue;
    RuleDraft draft = best_.draft;
    if (mark.role == PaperRole::QuestionNumber || mark.role == PaperRole::Question) {
      draft.questionBegins.insert(QuestionBeginPattern(source, mark));
    } else if (mark.role == PaperRole::Option) {
      const std::optional<std::size_t> index = OptionIndexOf(roles, mark);
      if (!index || *index >= kOptionCount) continue;
      draft.optionBegins[*index].insert(OptionBeginPattern(source, mark));
    } else if (mark.role == PaperRole::NotExam || mark.role == PaperRole::Heading) {
      draft.noQuestions.insert(LineBeginPattern(source, mark));
      draft.headings.insert(LineBeginPattern(source, mark) + u"[^\\r\\n\\v]*$");
      draft.steps.emplace(step_name::kNoise);
    } else {
      continue;
    }
    Try(std::move(draft));
  }
}

void LayoutSearch::TrySteps() {
  constexpr int kMostRounds = 8;
  for (int round = 0; round < kMostRounds && TryBestStep(); ++round) {
    if (options_.progress) options_.progress(round, kMostRounds);
  }
  for (const std::u16string_view step : kHarmless) {
    if (best_.draft.HasStep(step)) continue;
    RuleDraft draft = best_.draft;
    draft.steps.emplace(step);
    if (Prepared(draft).characters != Prepared(best_.draft).characters) Try(std::move(draft), true);
  }
}

/// Of all steps that change the text, takes the one that improves the reading most. What steps find is often
/// read only when it has become letters, so these are tried together with them.
bool LayoutSearch::TryBestStep() {
  const std::u16string before = Prepared(best_.draft).characters;
  TriedLayout bestStep;
  for (const PreparationStep& step : PreparationSteps()) {
    if (best_.draft.HasStep(step.name) || step.name == step_name::kUnnumbered ||
        step.name == step_name::kTableOptions)
      continue;
    RuleDraft draft = best_.draft;
    draft.steps.emplace(step.name);
    if (Prepared(draft).characters == before) continue;
    for (const std::u16string_view reading : {step.name, step_name::kKeyLetters, step_name::kJudgement}) {
      draft.steps.emplace(reading);
      TriedLayout tried = Tried(draft);
      if (tried.total > bestStep.total) bestStep = std::move(tried);
    }
  }
  constexpr double kWorthwhile = 0.01;
  if (bestStep.total < best_.total + kWorthwhile || !FitsFile(bestStep.rules)) return false;
  best_ = std::move(bestStep);
  return true;
}

/// Leaves out what does nothing, so that the rules are as short as they can be.
void LayoutSearch::Simplify() {
  const Steps steps = best_.draft.steps;
  for (const std::u16string& step : steps) {
    RuleDraft draft = best_.draft;
    draft.steps.erase(step);
    if (Prepared(draft).characters == Prepared(best_.draft).characters) Try(std::move(draft), true);
  }
}

}  // namespace quorvantis
