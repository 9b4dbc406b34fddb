// SPDX-License-Identifier: MIT
#include "shell/ImportSummary.h"

#include "import/ImportMarkers.h"
#include "import/RuleKeys.h"
#include "model/ExamLimits.h"
#include "regex/RegexPattern.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Composes the lines for one report.
class Summary {
 public:
  explicit Summary(const ImportReport& report) : report_(report) {}

  std::vector<std::u16string> Lines() {
    TellQuestions();
    TellBrokenRules();
    TellIdleRules();
    TellDroppedParts();
    TellAnswerBlocks();
    TellOwnMarkers();
    return std::move(lines_);
  }

 private:
  void Say(std::u16string_view format, std::initializer_list<std::u16string_view> values = {}) {
    lines_.push_back(FillMessage(format, values));
  }

  std::size_t Count(ReadKind kind) const {
    return static_cast<std::size_t>(std::ranges::count(report_.paper.questions, kind, &ReadQuestion::kind));
  }
  std::u16string Number(ReadKind kind) const { return Text(Count(kind)); }
  static std::u16string Text(std::size_t number) { return FormatInteger(static_cast<std::int64_t>(number)); }

  void TellQuestions() {
    const auto& questions = report_.paper.questions;
    Say(u"%s questions read: %s choice, %s true/false, %s fill-in, %s essay.",
        {Text(questions.size()), Number(ReadKind::Choice), Number(ReadKind::TrueFalse),
         Number(ReadKind::FillIn), Number(ReadKind::Essay)});
    const std::size_t slots = static_cast<std::size_t>(kMaxQuestions + 1 - report_.firstSlot);
    if (questions.size() <= slots) return;
    Say(u"The last %s of them were left out: an exam has %s questions at most.",
        {Text(questions.size() - slots), Text(kMaxQuestions)});
  }

  void TellBrokenRules() {
    const ImportSettings& rules = report_.rules;
    const std::pair<std::u16string_view, const std::u16string*> patterns[] = {
        {rule_key::kPattern, &rules.m_strPattern},
        {rule_key::kPreQuestion, &rules.m_strPreQuestion},
        {rule_key::kPreParenQuestion, &rules.m_strPreParenQuestion},
        {rule_key::kPreAnswer, &rules.m_strPreAnswer},
        {rule_key::kPreAllAnswer, &rules.m_strPreAllAnswer},
        {rule_key::kTitle, &rules.m_strTitle},
        {rule_key::kBmp, &rules.m_strBmp},
        {rule_key::kChoiceBmp, &rules.m_strChoiceBmp},
        {rule_key::kChoiceAnswerPattern, &rules.m_strChoiceAnswerPattern},
        {rule_key::kChoiceAnswer, &rules.m_strChoiceAnswer},
        {rule_key::kJudgementAnswerPattern, &rules.m_strJudgementAnswerPattern},
        {rule_key::kJudgementAnswer, &rules.m_strJudgementAnswer}};
    for (const auto& [key, pattern] : patterns) {
      const RegexPattern compiled(*pattern, 3);
      if (const auto& error = compiled.CompileError()) {
        const std::u16string reason(error->reason.begin(), error->reason.end());
        Say(u"The rule \"%s\" is no pattern: %s, at character %s.", {key, reason, Text(error->position + 1)});
      }
    }
  }

  /// In a paper with blocks of answers, answers need not stand with the questions.
  void TellIdleRules() {
    const bool hasBlock = report_.paper.hasChoiceBlock || report_.paper.hasJudgementBlock;
    for (const auto& [key, count] : report_.marked.counts) {
      if (count == 0 && !(hasBlock && key == rule_key::kPreAnswer)) TellIdle(key);
    }
    if (!report_.rules.m_strChoiceAnswerPattern.empty() && !report_.paper.hasChoiceBlock)
      TellIdle(rule_key::kChoiceAnswerPattern);
    if (!report_.rules.m_strJudgementAnswerPattern.empty() && !report_.paper.hasJudgementBlock)
      TellIdle(rule_key::kJudgementAnswerPattern);
    if (report_.rules.m_nTable != 0 && report_.marked.text == kQuestionMarker)
      Say(u"The repository is for papers that are tables, and there is no table with its columns.");
  }

  void TellIdle(std::u16string_view key) { Say(u"The rule \"%s\" matched nothing in the paper.", {key}); }

  void TellDroppedParts() {
    for (const std::u16string_view key : {rule_key::kPreAnswer, rule_key::kPattern}) {
      const auto& dropped = report_.paper.dropped;
      const auto first = std::ranges::find(dropped, key, &DroppedPart::key);
      if (first == dropped.end()) continue;
      const auto count = static_cast<std::size_t>(std::ranges::count(dropped, key, &DroppedPart::key));
      Say(u"%s parts of the paper were left out because the rule \"%s\" matched nothing in them; the first "
          u"begins: %s",
          {Text(count), key, first->text});
    }
  }

  void TellAnswerBlocks() {
    const ReadPaper& paper = report_.paper;
    if (!paper.hasChoiceBlock && !paper.hasJudgementBlock) return;
    const std::size_t unanswered = Count(ReadKind::FillIn) + Count(ReadKind::Essay);
    if (unanswered > 0)
      Say(u"%s fill-in and essay questions have no answer, because the paper has its answers in one place.",
          {Text(unanswered)});
    if (paper.hasJudgementBlock && Count(ReadKind::TrueFalse) > 0)
      Say(u"Every question without a group \"Q1\" was read as a true/false question, because the paper has a "
          u"block "
          u"of their answers.");
    if (paper.hasChoiceBlock) TellMismatch(rule_key::kChoiceAnswer, paper.choiceAnswers, ReadKind::Choice);
    if (paper.hasJudgementBlock)
      TellMismatch(rule_key::kJudgementAnswer, paper.judgementAnswers, ReadKind::TrueFalse);
  }

  void TellMismatch(std::u16string_view key, std::size_t answers, ReadKind kind) {
    if (answers == Count(kind)) return;
    Say(u"The rule \"%s\" found %s answers for %s questions.", {key, Text(answers), Number(kind)});
  }

  void TellOwnMarkers() {
    for (const std::u16string_view marker :
         {kQuestionMarker, kAnswerMarker, kAnswerSectionMarker, kPictureMarker, kOptionPictureMarker}) {
      if (report_.text.find(marker) == report_.text.npos) continue;
      Say(u"The paper itself holds \"%s\", which import takes for a mark of its own.", {marker});
    }
  }

  const ImportReport& report_;
  std::vector<std::u16string> lines_;
};

}  // namespace

std::vector<std::u16string> ImportSummary(const ImportReport& report) {
  return Summary(report).Lines();
}

}  // namespace quorvantis
