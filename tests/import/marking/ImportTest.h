// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/QuestionTextParser.h"
#include "import/marking/TextMarking.h"
#include "support/RecordingWorld.h"

#include <gtest/gtest.h>

namespace quorvantis::test {

inline const CancelHook kNeverCancelled;

/// The marked text, or "(reason key)" of the failure.
inline std::u16string Marked(const ImportSettings& rules, std::u16string_view text) {
  const MarkedText marked = TextToString(text, rules, kNeverCancelled);
  if (!marked.failure) return marked.text;
  constexpr std::u16string_view kReasons[] = {u"endless ", u"empty ", u"too large ", u"cancelled "};
  return u"(" + std::u16string(kReasons[static_cast<int>(marked.failure->reason)]) + marked.failure->key +
         u")";
}

inline ReadPaper Parsed(const ImportSettings& rules, std::u16string_view markedText, int firstPicture = 1) {
  RecordingDebug debug;
  return QuestionTextParser(rules, debug, kNeverCancelled).Parse(markedText, firstPicture);
}

/// The questions of a paper, one per line: kind, text, options, letters and mask, or the answer.
inline std::u16string Listed(const ReadPaper& paper) {
  constexpr std::u16string_view kKinds[] = {u"choice", u"true/false", u"fill-in", u"essay"};
  std::u16string lines;
  for (const ReadQuestion& question : paper.questions) {
    lines += std::u16string(kKinds[static_cast<int>(question.kind)]) + u"|" + question.text + u"|";
    for (const auto& option : question.options) lines += option.empty() ? u"" : option + u";";
    const std::string mask = std::to_string(question.mask);
    lines += question.letters + (question.mask == 0 ? u"" : std::u16string(mask.begin(), mask.end()));
    lines += question.answer + u"\n";
  }
  return lines;
}

}  // namespace quorvantis::test
