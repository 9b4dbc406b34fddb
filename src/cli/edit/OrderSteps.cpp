// SPDX-License-Identifier: MIT
#include "cli/edit/OrderSteps.h"

#include "cli/console/CommandError.h"
#include "editor/WorkCopies.h"
#include "taking/OtherExam.h"
#include "text/Utf.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quorvantis::cli {
namespace {

using Arguments = std::vector<ScriptArgument>;

int QuestionNumber(const ScriptArgument& argument) {
  const std::optional<int> number = argument.Index();
  if (!number) throw CommandError(Utf16ToUtf8(argument.Text()) + " is not the number of a question");
  return *number;
}

/// "3-7" or "3".
std::vector<int> QuestionRange(const ScriptArgument& argument) {
  const std::u16string text = argument.Text();
  const std::size_t dash = std::min(text.find(u'-'), text.size());
  const auto first = ScriptArgument::Quoted(text.substr(0, dash)).Index();
  const auto last = dash == text.size() ? first : ScriptArgument::Quoted(text.substr(dash + 1)).Index();
  if (!first || !last || *first < 1 || *last < *first || *last > kMaxQuestions)
    throw CommandError(Utf16ToUtf8(text) + " is no range of questions, such as 3-7");
  std::vector<int> numbers(static_cast<std::size_t>(*last - *first) + 1);
  std::iota(numbers.begin(), numbers.end(), *first);
  return numbers;
}

void RequireDone(EditSession& session, const OrderOutcome& outcome) {
  if (!outcome.IsDone()) throw CommandError(Utf16ToUtf8(OrderProblemText(outcome, session.Texts())));
}

int PlaceToTake(EditSession& session, const Arguments& arguments) {
  if (arguments.size() == 2) return session.Editor().state.CurrentQuestion();
  if (arguments.size() != 4 || arguments[2].Text() != u"after")
    throw CommandError("usage: take FILE M-K [after N]");
  const int after = QuestionNumber(arguments[3]);
  const int last = session.Editor().order.LastQuestion();
  if (after > last) RequireDone(session, {OrderProblem::NoSuchQuestion, after, last});
  return after;
}

}  // namespace

void MoveQuestion(EditSession& session, const Arguments& arguments) {
  const int from = QuestionNumber(arguments[0]);
  RequireDone(session, session.Editor().order.Move(from, QuestionNumber(arguments[1])));
}

void DuplicateQuestion(EditSession& session, const Arguments& arguments) {
  RequireDone(session, session.Editor().order.Duplicate({QuestionNumber(arguments[0])}));
}

void TakeQuestions(EditSession& session, const Arguments& arguments) {
  const std::vector<int> numbers = QuestionRange(arguments[1]);
  const int after = PlaceToTake(session, arguments);
  ExamEditor& editor = session.Editor();
  const ExamServices& services = editor.state.document.Services();
  const OtherExam other(services, AttachmentWorkRoot(services.applicationFolder), arguments[0].Path(),
                        editor.attachments.TakeCopyNumber());
  TakenQuestions taken = other.Take(numbers);
  if (!taken.problem.empty()) throw CommandError(Utf16ToUtf8(taken.problem));
  if (!other.PassedOverNotice().empty())
    session.Streams().Complain(other.File().string() + ": " + Utf16ToUtf8(other.PassedOverNotice()));
  RequireDone(session, editor.order.InsertWhole(std::move(taken.questions), after, ChangeKind::TakeQuestion));
}

}  // namespace quorvantis::cli
