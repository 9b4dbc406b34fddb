// SPDX-License-Identifier: MIT
#pragma once

#include "import/labels/OptionSequence.h"
#include "import/marking/ImportSettings.h"
#include "import/marking/RuleSearch.h"
#include "import/paper/PaperText.h"

#include <optional>
#include <vector>

namespace quorvantis {

/// A question as the steps see it. All spans are places in the text that was outlined.
struct OutlinedQuestion {
  int number = 0;  ///< as it is written; 0 for none
  TextSpan label;  ///< what the rule for numbers has matched
  TextSpan whole;  ///< from the label to the next question's, the answer section or the end
  TextSpan stem;   ///< from the label to the first option or the own answer, without blanks at its ends
  std::optional<OptionSequence> options;  ///< those before its own answer; more than five are listed, too
  TextSpan answerLabel;                   ///< of its own answer; empty, at the end, if it has none
  TextSpan answer;                        ///< what follows that label, without blanks at its ends

  bool HasAnswer() const { return !answerLabel.IsEmpty(); }
  bool HasOptions() const { return options.has_value(); }
};

/// What a repository's rules find in a text before anything is replaced: the questions, and where their
/// answers stand. Steps work on it, so that they agree with the rules about what a question is. Labels that
/// earlier steps have put in (PreparedLabels.h) are found as well, whatever the rules say.
struct PaperOutline {
  std::vector<OutlinedQuestion> questions;
  TextSpan front;  ///< what precedes the first question
  TextSpan
      answerSection;  ///< from the heading of the answers (rule "PreAllAnswer") to the end; empty without
};

/// Throws ImportFailure if a search was cancelled or ran out of memory.
PaperOutline OutlineOf(const PaperText& text, const ImportSettings& rules, const CancelHook& isCancelled);

}  // namespace quorvantis
