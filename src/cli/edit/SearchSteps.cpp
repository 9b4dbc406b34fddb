// SPDX-License-Identifier: MIT
#include "cli/edit/SearchSteps.h"

#include "cli/console/CommandError.h"
#include "platform/posix/InterruptWatch.h"
#include "platform/texts/SearchTexts.h"
#include "search/HitLine.h"
#include "search/SearchTexts.h"
#include "shell/commands/ReplaceCommand.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <ostream>

namespace quorvantis::cli {
namespace {

using SearchArguments = std::vector<ScriptArgument>;

void ThrowIfAny(const std::u16string& problem) {
  if (!problem.empty()) throw CommandError(Utf16ToUtf8(problem));
}

/// The text is the first argument; switches begin at argument `firstSwitch`.
SearchQuery QueryOf(const SearchArguments& arguments, std::size_t firstSwitch, const StringTable& texts) {
  SearchQuery query{arguments[0].Text()};
  if (query.text.empty()) throw CommandError(Utf16ToUtf8(texts.Text(text_id::kNothingSought)));
  for (std::size_t i = firstSwitch; i < arguments.size(); ++i) {
    const std::u16string word = arguments[i].Text();
    if (word == u"--pattern") {
      query.isPattern = true;
    } else if (word == u"--case") {
      query.matchCase = true;
    } else if (word == u"--word") {
      query.wholeWords = true;
    } else {
      throw CommandError("\"" + Utf16ToUtf8(word) + "\" is none of --pattern, --case and --word");
    }
  }
  return query;
}

/// Does work that may take long. Ctrl+C ends it, and so the script, without a change to the exam.
template <class Work>
auto Interruptibly(const Work& work) {
  const InterruptWatch watch;
  auto result = work([&watch] { return watch.HasCome(); });
  if (watch.HasCome()) throw CommandError("interrupted; the exam is unchanged", kCommandInterrupted);
  return result;
}

void PrintLine(EditSession& session, std::u16string_view line) {
  session.Streams().out << Utf16ToUtf8(line) << '\n';
}

void PrintHit(EditSession& session, const FrameSetExam& exam, const SearchHit& hit) {
  const HitLine line = LineAround(*TextAt(exam, hit.place), hit.start, hit.length);
  PrintLine(session, PlaceName(hit.place, session.Texts()) + u": " + line.text);
}

}  // namespace

void Find(EditSession& session, const SearchArguments& arguments) {
  const StringTable& texts = session.Texts();
  const TextSearch search(QueryOf(arguments, 1, texts));
  ThrowIfAny(QueryProblem(search, texts));
  const FrameSetExam exam = SearchedExam(session.Editor());
  const SearchOutcome outcome =
      Interruptibly([&](const SearchCancelled& isCancelled) { return FindAll(exam, search, isCancelled); });
  for (const SearchHit& hit : outcome.hits) PrintHit(session, exam, hit);
  const std::u16string count = FormatInteger(static_cast<std::int64_t>(outcome.hits.size()));
  PrintLine(session, FillMessage(texts.Text(text_id::kHits), {count}));
  session.Streams().out.flush();
  ThrowIfAny(SearchProblem(outcome.end, outcome.stoppedAt, texts));
}

void Replace(EditSession& session, const SearchArguments& arguments) {
  const StringTable& texts = session.Texts();
  const SearchQuery query = QueryOf(arguments, 2, texts);
  const TextSearch search(query);
  ThrowIfAny(QueryProblem(search, texts));
  const ReplacementText replacement(arguments[1].Text(), query.isPattern);
  ThrowIfAny(ReplacementProblem(replacement, search, texts));
  const FrameSetExam exam = SearchedExam(session.Editor());
  const ReplacementPlan plan = Interruptibly([&](const SearchCancelled& isCancelled) {
    return PlanReplacements(exam, search, replacement, isCancelled);
  });
  ThrowIfAny(SearchProblem(plan.end, plan.stoppedAt, texts));
  if (plan.replacements.empty()) return PrintLine(session, NothingToReplaceText(plan, texts));
  const ReplaceOutcome outcome = ReplaceHits(session.Editor(), exam, plan.replacements);
  for (const std::u16string& line : ReplaceSummary(outcome, texts)) PrintLine(session, line);
  session.Streams().out.flush();
}

}  // namespace quorvantis::cli
