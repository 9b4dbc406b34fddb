// SPDX-License-Identifier: MIT
#include "import/DocumentFailureText.h"
#include "import/ImportReport.h"
#include "import/LostPictures.h"
#include "import/marking/ImportMarkers.h"
#include "import/marking/RuleKeys.h"
#include "import/prepare/StepNames.h"
#include "model/ExamLimits.h"
#include "platform/texts/ImportTexts.h"
#include "regex/RegexPattern.h"
#include "text/AsciiCase.h"
#include "text/MessageText.h"
#include "text/NumberRanges.h"
#include "text/NumberText.h"

#include <algorithm>
#include <numeric>

namespace quorvantis {
namespace {

std::u16string Text(std::size_t number) {
  return FormatInteger(static_cast<std::int64_t>(number));
}

std::u16string Text(int number) {
  return FormatInteger(number);
}

std::vector<int> Slots(int first, int end) {
  std::vector<int> slots(static_cast<std::size_t>(end - first));
  std::iota(slots.begin(), slots.end(), first);
  return slots;
}

/// Composes the lines for one report.
class Summary {
 public:
  Summary(const ImportReport& report, const StringTable& strings) : report_(report), strings_(strings) {}

  std::vector<std::u16string> Lines() {
    if (report_.imported) {
      TellQuestions();
    } else {
      Say(text_id::kGivenUp);
    }
    SayOfQuestions(text_id::kQuestionsReplaced, report_.replaced);
    SayOfQuestions(text_id::kFilesStayed, report_.filesStayed);
    TellBrokenRules();
    TellIdleRules();
    TellDroppedParts();
    TellOwnMarkers();
    if (report_.imported) TellImported();
    return std::move(lines_);
  }

 private:
  void Say(int text, std::initializer_list<std::u16string_view> values = {}) {
    lines_.push_back(FillMessage(strings_.Text(text), values));
  }

  /// For a text with the count of the questions, then their numbers.
  void SayOfQuestions(int text, const std::vector<int>& questions) {
    if (!questions.empty()) Say(text, {Text(questions.size()), NumberRanges(questions)});
  }

  /// The lines about questions that are in the exam.
  void TellImported() {
    TellAnswerBlocks();
    TellLostPictures();
    SayOfQuestions(text_id::kOptionPictures, report_.optionPictures);
    TellFormulas();
    if (report_.questionAsItIs != 0) Say(text_id::kQuestionAsItIs, {Text(report_.questionAsItIs)});
    if (report_.loneLineEnds > 0) Say(text_id::kLineEnds, {Text(report_.loneLineEnds)});
  }

  std::size_t Count(ReadKind kind) const {
    return static_cast<std::size_t>(std::ranges::count(report_.paper.questions, kind, &ReadQuestion::kind));
  }
  std::u16string Number(ReadKind kind) const { return Text(Count(kind)); }

  void TellQuestions() {
    const auto& questions = report_.paper.questions;
    Say(text_id::kQuestionsRead,
        {Text(questions.size()), Number(ReadKind::Choice), Number(ReadKind::TrueFalse),
         Number(ReadKind::FillIn), Number(ReadKind::Essay)});
    const int slots = report_.nextSlot - report_.firstSlot;
    const auto written = static_cast<std::size_t>(slots) + static_cast<std::size_t>(report_.removed);
    if (questions.size() > written)
      Say(text_id::kLeftOut, {Text(questions.size() - written), Text(kMaxQuestions)});
    if (report_.removed > 0) Say(text_id::kQuestionsRemoved, {Text(report_.removed)});
    if (report_.firstSlot > 1 && report_.nextSlot > report_.firstSlot)
      Say(text_id::kSlotsFilled, {Text(report_.nextSlot - report_.firstSlot),
                                  NumberRanges(Slots(report_.firstSlot, report_.nextSlot))});
  }

  void TellBrokenRules() {
    for (const auto& [key, pattern] : kPatternRules) {
      const RegexPattern compiled(report_.rules.*pattern, kRuleFlags);
      if (const auto& error = compiled.CompileError()) {
        const std::u16string reason(error->reason.begin(), error->reason.end());
        Say(text_id::kRuleIsNoPattern, {key, reason, Text(error->position + 1)});
      }
    }
  }

  void TellIdleRules() {
    for (const auto& [key, count] : report_.marked.counts) {
      if (count == 0 && !IsDoneOtherwise(key)) TellIdle(key);
    }
    if (!report_.rules.m_strChoiceAnswerPattern.empty() && !report_.paper.hasChoiceBlock)
      TellIdle(rule_key::kChoiceAnswerPattern);
    if (!report_.rules.m_strJudgementAnswerPattern.empty() && !report_.paper.hasJudgementBlock)
      TellIdle(rule_key::kJudgementAnswerPattern);
    if (report_.rules.m_nTable != 0 && report_.marked.text == kQuestionMarker) Say(text_id::kNoSuchTable);
    if (report_.content && report_.content->hasNumbersLeftOut && !HasMarkedQuestions())
      Say(text_id::kAutomaticNumbers);
  }

  /// In a paper with blocks of answers, questions need no answers of their own; a step that leaves out what
  /// titles match leaves none to the marking.
  bool IsDoneOtherwise(std::u16string_view key) const {
    const auto isNoise = [](const auto& step) { return EqualsIgnoringAsciiCase(step, step_name::kNoise); };
    if (key == rule_key::kTitle) return std::ranges::any_of(report_.rules.prepare, isNoise);
    return key == rule_key::kPreAnswer && (report_.paper.hasChoiceBlock || report_.paper.hasJudgementBlock);
  }

  /// Whether a rule for the start of questions matched.
  bool HasMarkedQuestions() const {
    return report_.rules.m_nTable != 0 || std::ranges::any_of(report_.marked.counts, [](const auto& rule) {
             const bool isOfQuestions =
                 rule.first == rule_key::kPreQuestion || rule.first == rule_key::kPreParenQuestion;
             return isOfQuestions && rule.second > 0;
           });
  }

  void TellIdle(std::u16string_view key) { Say(text_id::kRuleIsIdle, {key}); }

  void TellDroppedParts() {
    for (const std::u16string_view key : {rule_key::kPreAnswer, rule_key::kPattern}) {
      const auto& dropped = report_.paper.dropped;
      const auto first = std::ranges::find(dropped, key, &DroppedPart::key);
      if (first == dropped.end()) continue;
      const auto count = static_cast<std::size_t>(std::ranges::count(dropped, key, &DroppedPart::key));
      Say(text_id::kPartsLeftOut, {Text(count), key, first->text});
    }
  }

  void TellAnswerBlocks() {
    const ReadPaper& paper = report_.paper;
    if (!paper.hasChoiceBlock && !paper.hasJudgementBlock) return;
    const std::size_t unanswered = Count(ReadKind::FillIn) + Count(ReadKind::Essay);
    if (unanswered > 0) Say(text_id::kUnanswered, {Text(unanswered)});
    if (paper.hasJudgementBlock && Count(ReadKind::TrueFalse) > 0) Say(text_id::kAllTrueFalse);
    if (paper.hasChoiceBlock) TellMismatch(rule_key::kChoiceAnswer, paper.choiceAnswers, ReadKind::Choice);
    if (paper.hasJudgementBlock)
      TellMismatch(rule_key::kJudgementAnswer, paper.judgementAnswers, ReadKind::TrueFalse);
    for (const MisplacedAnswer& answer : paper.misplaced)
      Say(text_id::kAnswersByOrder, {answer.key, Text(answer.number), Text(answer.question)});
  }

  void TellMismatch(std::u16string_view key, std::size_t answers, ReadKind kind) {
    if (answers == Count(kind)) return;
    Say(text_id::kAnswersDiffer, {key, Text(answers), Number(kind)});
  }

  void TellOwnMarkers() {
    for (const std::u16string_view marker :
         {kQuestionMarker, kAnswerMarker, kAnswerSectionMarker, kPictureMarker, kOptionPictureMarker}) {
      const bool isFormulas = marker == kPictureMarker && HasFormulas();
      if (!isFormulas && report_.content && report_.content->text.find(marker) != std::u16string::npos)
        Say(text_id::kOwnMarker, {marker});
    }
  }

  void TellLostPictures() {
    for (const auto& [reason, questions] : GroupLostPictures(report_)) {
      std::u16string list;
      std::size_t count = 0;
      for (const auto& [question, pictures] : questions) {
        list += list.empty() ? u"" : u"; ";
        count += pictures.size();
        list += question == kNoQuestion ? NumberRanges(pictures)
                                        : FillMessage(strings_.Text(text_id::kPicturesOfQuestion),
                                                      {NumberRanges(pictures), Text(question)});
      }
      Say(text_id::kPicturesLost, {Text(count), PictureFailureText(reason, Text(count), strings_), list});
    }
  }

  bool HasFormulas() const { return report_.content && report_.content->formulas > 0; }

  void TellFormulas() {
    if (report_.formulasKept > 0) Say(text_id::kFormulasMasked, {Text(report_.formulasKept)});
    if (HasFormulas() && report_.content->text.find(kPictureMarker) != std::u16string::npos)
      Say(text_id::kFormulasAdjacent);
  }

  const ImportReport& report_;
  const StringTable& strings_;
  std::vector<std::u16string> lines_;
};

}  // namespace

std::vector<std::u16string> ImportSummary(const ImportReport& report, const StringTable& strings) {
  return Summary(report, strings).Lines();
}

}  // namespace quorvantis
