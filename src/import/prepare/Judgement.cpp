// SPDX-License-Identifier: MIT
#include "import/keys/QuestionKey.h"
#include "import/labels/LineText.h"
#include "import/lines/JudgementWords.h"
#include "import/paper/PreparedLabels.h"
#include "import/prepare/Steps.h"

#include <algorithm>
#include <optional>
#include <string>

namespace quorvantis {
namespace {

/// A question without options whose answer says "true" or "false".
struct JudgedQuestion {
  const OutlinedQuestion* question = nullptr;
  std::vector<JudgementWord> words{};  ///< what its answer can be
  std::u16string_view written;
};

/// Whether a statement has a blank for a word. One before it, or behind its end, is for the judgement itself.
bool HasBlankWithin(std::u16string_view stem) {
  constexpr std::u16string_view kFillMarks = u"_＿ ()（）[]";
  constexpr std::u16string_view kEnds = u".!。！…";
  const std::size_t first = stem.find_first_not_of(kFillMarks);
  const std::size_t last = stem.find_last_not_of(kFillMarks);
  if (first == stem.npos || stem.find(u"__") == stem.npos) return false;
  const std::u16string_view statement = stem.substr(first, last + 1 - first);
  if (statement.find(u"__") != statement.npos) return true;
  const bool isBehind = stem.find(u"__", last) != stem.npos;
  return isBehind && kEnds.find(statement.back()) == kEnds.npos;
}

/// The judgement that a question's answer is, if it is one; an explanation may follow, behind a mark.
std::optional<JudgedQuestion> JudgedBy(std::u16string_view text, const OutlinedQuestion& question) {
  if (question.HasOptions() || IsUnanswered(text, question)) return std::nullopt;
  if (HasBlankWithin(question.stem.Of(text))) return std::nullopt;
  const TextSpan line = FirstLineOf(text, question.answer);
  std::size_t begin = line.begin;
  while (begin < line.end && std::u16string_view(u"(（[【 ").find(text[begin]) != std::u16string_view::npos)
    ++begin;
  std::vector<JudgementWord> words = JudgementWordsAt(text.substr(begin, line.end - begin));
  if (words.empty()) return std::nullopt;
  const std::size_t end = begin + words.front().size;
  const std::size_t after = SkipBlanks(text, end, line.end);
  const bool isAlone =
      after == line.end ||
      std::u16string_view(u".,;:-–—()（）。，；：)]】!").find(text[after]) != std::u16string_view::npos;
  if (!isAlone) return std::nullopt;
  return JudgedQuestion{&question, std::move(words), text.substr(begin, end - begin)};
}

/// Questions that follow each other and are all judged.
using JudgedRun = std::vector<JudgedQuestion>;

/// The pair that most answers of a run belong to; of several, the one that both answers are seen of.
std::size_t PairOf(const JudgedRun& run) {
  std::vector<std::size_t> rights(JudgementPairs().size(), 0);
  std::vector<std::size_t> wrongs(JudgementPairs().size(), 0);
  for (const JudgedQuestion& judged : run) {
    for (const JudgementWord& word : judged.words) ++(word.isRight ? rights : wrongs)[word.pair];
  }
  std::size_t best = 0;
  const auto score = [&](std::size_t pair) {
    return (rights[pair] + wrongs[pair]) * 2 + (rights[pair] > 0 && wrongs[pair] > 0 ? 1 : 0);
  };
  for (std::size_t pair = 1; pair < rights.size(); ++pair) {
    if (score(pair) > score(best)) best = pair;
  }
  return best;
}

/// A single letter at a single question may be anything.
bool IsJudgementRun(const JudgedRun& run) {
  if (run.size() >= 2) return true;
  return !run.empty() && (run[0].written.size() > 1 || run[0].written.front() >= 0x2000);
}

const JudgementWord& WordOf(const JudgedQuestion& judged, std::size_t pair) {
  const auto found = std::ranges::find(judged.words, pair, &JudgementWord::pair);
  return found == judged.words.end() ? judged.words.front() : *found;
}

/// The word as the run writes it: "true" rather than "True".
std::u16string Spelling(const JudgedRun& run, std::size_t pair, bool isRight) {
  for (const JudgedQuestion& judged : run) {
    for (const JudgementWord& word : judged.words) {
      if (word.pair == pair && word.isRight == isRight) return std::u16string(judged.written);
    }
  }
  const JudgementPair& words = JudgementPairs()[pair];
  return std::u16string(isRight ? words.right : words.wrong);
}

void AddOptions(const PaperText& text, const JudgedRun& run, std::vector<PaperEdit>& edits) {
  const std::size_t common = PairOf(run);
  for (const JudgedQuestion& judged : run) {
    const OutlinedQuestion& question = *judged.question;
    const JudgementWord& word = WordOf(judged, common);
    std::u16string options;
    for (const bool isRight : {true, false}) {
      options += LineEndIn(text.characters);
      options += PreparedOption(isRight ? 0 : 1);
      options += u" " + Spelling(run, word.pair, isRight);
    }
    const std::size_t end = std::max(question.stem.end, question.label.end);
    edits.push_back({{end, end}, InsertedText(options)});
    edits.push_back({question.answer, LettersInPlace(text, question.answer, word.isRight ? u"A" : u"B")});
  }
}

}  // namespace

void step::Judgement(PaperText& text, const PreparationContext& context) {
  const PaperOutline outline = OutlineOf(text, context);
  std::vector<PaperEdit> edits;
  JudgedRun run;
  const auto finish = [&] {
    if (IsJudgementRun(run)) AddOptions(text, run, edits);
    run.clear();
  };
  for (const OutlinedQuestion& question : outline.questions) {
    if (auto judged = JudgedBy(text.characters, question)) {
      run.push_back(std::move(*judged));
    } else {
      finish();
    }
  }
  finish();
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
