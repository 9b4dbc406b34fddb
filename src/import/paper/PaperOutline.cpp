// SPDX-License-Identifier: MIT
#include "import/paper/PaperOutline.h"

#include "import/labels/LineText.h"
#include "import/labels/Numerals.h"
#include "import/marking/RuleKeys.h"
#include "import/paper/PreparedLabels.h"
#include "import/paper/RuleMatches.h"

#include <algorithm>
#include <string>

namespace quorvantis {
namespace {

/// One text being outlined.
class Outlining {
 public:
  Outlining(const PaperText& text, const ImportSettings& rules, const CancelHook& isCancelled)
      : text_(text.characters), rules_(rules), isCancelled_(isCancelled) {}

  PaperOutline Outline() {
    FindAnswerSection();
    const std::vector<TextSpan> labels = QuestionLabels();
    const std::vector<TextSpan> answers = AnswerLabels();
    outline_.front = {0, labels.empty() ? end_ : labels.front().begin};
    auto answer = answers.begin();
    for (std::size_t i = 0; i < labels.size(); ++i) {
      const std::size_t end = i + 1 < labels.size() ? labels[i + 1].begin : end_;
      while (answer != answers.end() && answer->begin < labels[i].end) ++answer;
      const bool hasAnswer = answer != answers.end() && answer->begin < end;
      Add(labels[i], end, hasAnswer ? *answer : TextSpan{end, end});
    }
    return std::move(outline_);
  }

 private:
  void FindAnswerSection() {
    end_ = text_.size();
    outline_.answerSection = {end_, end_};
    const std::vector<TextSpan> found =
        MatchesOf(rule_key::kPreAllAnswer, rules_.m_strPreAllAnswer, text_, {0, text_.size()}, isCancelled_);
    if (found.empty()) return;
    end_ = found.front().begin;
    outline_.answerSection = {end_, text_.size()};
  }

  std::vector<TextSpan> Matches(std::u16string_view key, const std::u16string& pattern) const {
    return MatchesOf(key, pattern, text_, {0, end_}, isCancelled_);
  }

  /// Of labels that overlap the first counts.
  static void Sort(std::vector<TextSpan>& labels) {
    std::ranges::stable_sort(labels, {}, &TextSpan::begin);
    std::vector<TextSpan> kept;
    for (const TextSpan& label : labels) {
      if (kept.empty() || label.begin >= kept.back().end) kept.push_back(label);
    }
    labels = std::move(kept);
  }

  static void AddAll(std::vector<TextSpan>& labels, const std::vector<TextSpan>& more) {
    labels.insert(labels.end(), more.begin(), more.end());
  }

  std::vector<TextSpan> QuestionLabels() const {
    std::vector<TextSpan> labels = Matches(rule_key::kPreParenQuestion, rules_.m_strPreParenQuestion);
    AddAll(labels, Matches(rule_key::kPreQuestion, rules_.m_strPreQuestion));
    AddAll(labels, Matches(rule_key::kPreQuestion, std::u16string(kPreparedNumberPattern)));
    Sort(labels);
    return labels;
  }

  std::vector<TextSpan> AnswerLabels() const {
    std::vector<TextSpan> labels = Matches(rule_key::kPreAnswer, rules_.m_strPreAnswer);
    AddAll(labels, Matches(rule_key::kPreAnswer, std::u16string(kPreparedKeyPattern)));
    Sort(labels);
    return labels;
  }

  void Add(TextSpan label, std::size_t end, TextSpan answerLabel) {
    OutlinedQuestion question;
    question.label = label;
    question.number = NumberInLabel(label.Of(text_));
    question.whole = {label.begin, end};
    question.answerLabel = answerLabel;
    question.answer = Trimmed(text_, {answerLabel.end, end});
    const TextSpan body{label.end, answerLabel.begin};
    question.options = FindOptions(text_, body);
    question.stem = Trimmed(text_, {body.begin, question.options ? StartOf(*question.options) : body.end});
    outline_.questions.push_back(std::move(question));
  }

  static std::size_t StartOf(const OptionSequence& options) {
    const OptionLabel& first = options.labels.front();
    return first.sign.IsEmpty() ? first.label.begin : first.sign.begin;
  }

  std::u16string_view text_;
  const ImportSettings& rules_;
  const CancelHook& isCancelled_;
  std::size_t end_ = 0;  ///< of the questions
  PaperOutline outline_;
};

}  // namespace

PaperOutline OutlineOf(const PaperText& text, const ImportSettings& rules, const CancelHook& isCancelled) {
  return Outlining(text, rules, isCancelled).Outline();
}

}  // namespace quorvantis
