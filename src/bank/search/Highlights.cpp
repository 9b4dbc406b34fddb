// SPDX-License-Identifier: MIT
#include "bank/search/Highlights.h"

#include "bank/index/FoldedText.h"
#include "bank/index/ShortWords.h"

#include <algorithm>

namespace quorvantis {
namespace {

void FindTerm(const FoldedText& text, const BankTerm& term, std::vector<TextSpan>& found) {
  const std::u16string& folded = text.Text();
  const bool isShort = CharactersOf(term.folded) < kTrigram;
  for (std::size_t at = folded.find(term.folded); at != folded.npos; at = folded.find(term.folded, at + 1)) {
    if (isShort && !IsShortWordAt(folded, at, term.folded, term.isBegun)) continue;
    found.push_back(text.Original({at, at + term.folded.size()}));
  }
}

std::vector<TextSpan> Merged(std::vector<TextSpan> spans) {
  std::sort(spans.begin(), spans.end(),
            [](const TextSpan& a, const TextSpan& b) { return a.begin < b.begin; });
  std::vector<TextSpan> merged;
  merged.reserve(spans.size());
  for (const TextSpan& span : spans) {
    if (!merged.empty() && span.begin < merged.back().end) {
      merged.back().end = std::max(merged.back().end, span.end);
    } else {
      merged.push_back(span);
    }
  }
  return merged;
}

}  // namespace

std::vector<TextSpan> MatchesIn(std::u16string_view text, const BankQuery& query) {
  const FoldedText folded(text);
  std::vector<TextSpan> found;
  for (const BankTerm& term : query.terms) {
    if (!term.isExcluded) FindTerm(folded, term, found);
  }
  return Merged(std::move(found));
}

std::vector<BankHighlight> HighlightsOf(const BankQuestion& question, const BankQuery& query) {
  std::vector<BankHighlight> highlights;
  const auto look = [&](ExamFieldName field, unsigned index, const std::u16string& text) {
    for (const TextSpan& span : MatchesIn(text, query)) highlights.push_back({field, index, span});
  };
  look(ExamFieldName::QuestionText, 0, question.text);
  for (unsigned i = 0; i < question.options.size(); ++i) look(ExamFieldName::Options, i, question.options[i]);
  look(ExamFieldName::FillInAnswer, 0, question.answerText);
  look(ExamFieldName::EssayAnswer, 0, question.essayAnswer);
  for (unsigned i = 0; i < question.files.size(); ++i)
    look(ExamFieldName::AttachmentName, i, question.files[i].name);
  return highlights;
}

}  // namespace quorvantis
