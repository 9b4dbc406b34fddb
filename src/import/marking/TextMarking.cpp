// SPDX-License-Identifier: MIT
#include "import/marking/TextMarking.h"

#include "import/marking/ImportMarkers.h"
#include "import/marking/ReplaceAllPass.h"
#include "import/marking/RuleKeys.h"

namespace quorvantis {
namespace {

/// The passes over one text.
class Marking {
 public:
  Marking(std::u16string_view text, const CancelHook& isCancelled, TraceOrigins trace)
      : result_{std::u16string(text)}, isCancelled_(isCancelled) {
    if (trace == TraceOrigins::Yes) tracer_.emplace(text.size());
  }

  void ReplaceAll(std::u16string_view key, std::u16string_view pattern, std::u16string_view marker) {
    Pass(key, pattern,
         [&](const RuleSearch& rule) { return ReplaceAllPass(result_.text, rule, marker, Tracer()).Run(); });
  }
  void ReplaceFirst(std::u16string_view key, std::u16string_view pattern, std::u16string_view marker) {
    Pass(key, pattern, [&](const RuleSearch& rule) {
      return ReplaceAllPass(result_.text, rule, marker, Tracer()).RunOnce() ? 1 : 0;
    });
  }
  void DeleteTitles(std::u16string_view key, std::u16string_view pattern) {
    Pass(key, pattern, [&](const RuleSearch& rule) { return RemoveTitles(result_.text, rule, Tracer()); });
  }

  void Fail(const ImportFailure& failure) { result_.failure = failure; }

  MarkedText Take() {
    if (tracer_) result_.trace = tracer_->Take();
    return std::move(result_);
  }

 private:
  MarkingTracer* Tracer() { return tracer_ ? &*tracer_ : nullptr; }

  /// A missing rule is not a pass: an empty pattern would match everywhere, forever.
  template <class Work>
  void Pass(std::u16string_view key, std::u16string_view pattern, const Work& work) {
    if (pattern.empty()) return;
    const RuleSearch rule(key, pattern, isCancelled_);
    result_.counts.emplace_back(key, work(rule));
  }

  MarkedText result_;
  std::optional<MarkingTracer> tracer_;
  const CancelHook& isCancelled_;
};

}  // namespace

MarkedText TextToString(std::u16string_view text, const ImportSettings& rules, const CancelHook& isCancelled,
                        TraceOrigins trace) {
  Marking marking(TextBeforeNul(text), isCancelled, trace);
  try {
    marking.ReplaceAll(rule_key::kBmp, rules.m_strBmp, kPictureMarker);
    marking.ReplaceAll(rule_key::kChoiceBmp, rules.m_strChoiceBmp, kOptionPictureMarker);
    marking.ReplaceAll(rule_key::kPreParenQuestion, rules.m_strPreParenQuestion, kQuestionMarker);
    marking.ReplaceAll(rule_key::kPreQuestion, rules.m_strPreQuestion, kQuestionMarker);
    marking.DeleteTitles(rule_key::kTitle, rules.m_strTitle);
    marking.ReplaceAll(rule_key::kPreAnswer, rules.m_strPreAnswer, kAnswerMarker);
    marking.ReplaceFirst(rule_key::kPreAllAnswer, rules.m_strPreAllAnswer, kAnswerSectionMarker);
  } catch (const ImportFailure& failure) {
    marking.Fail(failure);
  }
  return marking.Take();
}

}  // namespace quorvantis
