// SPDX-License-Identifier: MIT
// The commands of the script language, in a table.
#include "cli/console/CommandError.h"
#include "cli/console/WhyUnreadable.h"
#include "cli/edit/EditSession.h"
#include "cli/edit/OrderSteps.h"
#include "cli/edit/ScoreSteps.h"
#include "cli/edit/SearchSteps.h"
#include "cli/form/EditorStateJson.h"
#include "cli/form/KindNames.h"
#include "model/AnswerLetters.h"
#include "platform/texts/EditorTexts.h"
#include "shell/commands/ScoreSetupCommand.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>

namespace quorvantis::cli {
namespace {

using Arguments = std::vector<ScriptArgument>;

/// The index of box or option A to E.
std::size_t BoxIndex(const ScriptArgument& argument) {
  const std::u16string letter = argument.Text();
  const auto index = letter.size() == 1 ? OptionIndex(letter[0]) : std::nullopt;
  if (!index) throw CommandError("a letter from A to E is needed");
  return *index;
}

std::size_t EntryIndex(const ScriptArgument& argument, const ShownAttachments& list) {
  const std::optional<int> index = argument.Index();
  if (!index || static_cast<std::size_t>(*index) >= list.names.size()) {
    throw CommandError("the list has no entry " + Utf16ToUtf8(argument.Text()) + "; it counts from 0");
  }
  return static_cast<std::size_t>(*index);
}

/// The window's file dialogs offer only existing files.
std::filesystem::path ExistingFile(const ScriptArgument& argument) {
  std::filesystem::path file = argument.Path();
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error))
    throw CommandError(file.string() + ": " + WhyUnreadable(file));
  return file;
}

/// A text over the limit is refused as in the window, where the field would keep its old text.
void EditField(EditSession& session, FormField field, const ScriptArgument& argument) {
  if (session.Editor().questions.EditField(field, argument.Text())) return;
  const std::u16string limit = FormatInteger(static_cast<std::int64_t>(MaxLength(field)));
  session.Streams().Complain(Utf16ToUtf8(FillMessage(session.Texts().Text(text_id::kTooLong), {limit})));
}

template <FormField field>
void EditText(EditSession& session, const Arguments& arguments) {
  EditField(session, field, arguments[0]);
}

void Attach(EditSession& session, AttachedTo list, const ScriptArgument& argument) {
  const std::filesystem::path file = ExistingFile(argument);
  AttachmentEditor& attachments = session.Editor().attachments;
  if ((list == AttachedTo::Exam ? attachments.ExamList() : attachments.QuestionList()).IsFull()) {
    session.Streams().Complain(file.string() + ": not attached; a list holds at most " +
                               std::to_string(kMaxAttachments) + " files");
    return;
  }
  if (list == AttachedTo::Exam) {
    attachments.AttachExamFile(file);
  } else {
    attachments.AttachQuestionFile(file);
  }
  const std::u16string problem = attachments.CopyProblem();
  if (!problem.empty()) throw CommandError(Utf16ToUtf8(problem));
}

/// The window has the switch only for oral questions, and there shows the flag of the current question.
void SwitchOral(EditSession& session, const Arguments&) {
  ExamEditor& editor = session.Editor();
  if (!AnswerOf(editor.state.CurrentKind()).oral)
    session.Streams().Complain("not switched: the question is not oral");
  editor.attachments.ReadOralFlag();
  editor.attachments.ToggleOral();
}

template <void (QuestionEditor::*operation)()>
void Call(EditSession& session, const Arguments&) {
  (session.Editor().questions.*operation)();
}

void Tick(EditSession& session, const Arguments& arguments, bool on) {
  session.Editor().questions.TickAnswerBox(BoxIndex(arguments[0]), on);
}

void Open(EditSession& session, const Arguments& arguments) {
  session.OpenExam(arguments[0].Path());
}

void Save(EditSession& session, const Arguments&) {
  ExamEditor& editor = session.Editor();
  if (editor.state.IsUntitled()) session.Streams().Complain("the exam has no file name yet; use saveas");
  editor.files.SaveExam();
}

/// Whether Save As accepts a name.
bool IsSaveable(const std::filesystem::path& file) {
  const std::u16string extension = ExtensionOrPath(PathToText(file));
  return extension == u"exm" || extension == u"doc";
}

void SaveAs(EditSession& session, const Arguments& arguments) {
  if (!IsSaveable(arguments[0].Path())) {
    session.Streams().Complain("saved nothing: the name ends neither in .exm nor in .doc");
  }
  session.Dialogs().ChooseNext(arguments[0].Path());
  session.Editor().files.SaveExamAs();
}

void Close(EditSession& session, const Arguments&) {
  const bool hasReply = session.Dialogs().HasSaveAnswer();
  if (session.Editor().files.ConfirmClose()) return session.Close();
  if (!hasReply) session.LackReplyToClose();
}

void Reply(EditSession& session, const Arguments& arguments) {
  const std::u16string answer = arguments[0].Text();
  if (answer != u"yes" && answer != u"no" && answer != u"cancel")
    throw CommandError("usage: reply yes|no|cancel");
  session.Dialogs().AnswerNextSaveQuestion(answer == u"yes"  ? SaveAnswer::Yes
                                           : answer == u"no" ? SaveAnswer::No
                                                             : SaveAnswer::Cancel);
}

void Kind(EditSession& session, const Arguments& arguments) {
  const auto kind = KindOfWord(Utf16ToUtf8(arguments[0].Text()));
  if (!kind) throw CommandError("usage: kind " + std::string(KindWords()));
  session.Editor().questions.SelectKind(*kind);
}

void Option(EditSession& session, const Arguments& arguments) {
  EditField(session, OptionField(BoxIndex(arguments[0])), arguments[1]);
}

/// "continue" or "new", then "pictures" and "formulas" with an answer each, in any order.
void TakeImportAnswers(ImportAnswers& answers, const Arguments& arguments) {
  for (std::size_t i = 2; i < arguments.size(); ++i) {
    const std::u16string word = arguments[i].Text();
    if (word == u"continue" || word == u"new") {
      answers.target = word == u"new" ? ImportTarget::NewExam : ImportTarget::Continue;
    } else if ((word == u"pictures" || word == u"formulas") && i + 1 < arguments.size()) {
      const ChoiceResult choice = ChoiceNamed(Utf16ToUtf8(arguments[++i].Text()));
      (word == u"pictures" ? answers.pictures : answers.formulas) = choice;
    } else {
      throw CommandError("after the repository come: continue or new, pictures X, formulas X");
    }
  }
}

void Import(EditSession& session, const Arguments& arguments) {
  ImportAnswers answers;
  answers.document = arguments[0].Path();
  answers.repository = arguments[1].Text();
  TakeImportAnswers(answers, arguments);
  session.ImportAnswers().Prepare(std::move(answers));
  session.Import().ImportQuestions();
  session.ImportAnswers().ThrowIfRefused();
  for (const std::u16string& line : ImportSummary(session.ImportAnswers().Report(), session.Texts()))
    session.Streams().Complain(Utf16ToUtf8(line));
}

void UndoImport(EditSession& session, const Arguments&) {
  if (!session.Import().CanUndo()) throw CommandError("there is no import to undo");
  session.Import().Undo();
}

void TellAboutStep(EditSession& session, const std::optional<HistorySpot>& spot, const char* nothing) {
  if (!spot) return session.Streams().Complain(nothing);
  for (const std::filesystem::path& file : spot->lostFiles)
    session.Streams().Complain(file.string() + ": this attached file could not be put back");
}

void Undo(EditSession& session, const Arguments&) {
  const bool hasForgotten = session.Steps().HasForgotten();
  TellAboutStep(
      session, session.Steps().Undo(),
      hasForgotten ? "there is nothing to undo: older steps are no longer kept" : "there is nothing to undo");
}

void Redo(EditSession& session, const Arguments&) {
  TellAboutStep(session, session.Steps().Redo(), "there is nothing to redo");
}

void Remove(EditSession& session, const Arguments& arguments) {
  AttachmentEditor& attachments = session.Editor().attachments;
  attachments.SelectQuestionFile(EntryIndex(arguments[0], attachments.QuestionList()));
  attachments.RemoveSelectedAttachment(AttachedTo::Question);
}

void RemoveExam(EditSession& session, const Arguments& arguments) {
  AttachmentEditor& attachments = session.Editor().attachments;
  attachments.SelectExamFile(EntryIndex(arguments[0], attachments.ExamList()));
  attachments.RemoveSelectedAttachment(AttachedTo::Exam);
}

void Select(EditSession& session, const Arguments& arguments) {
  AttachmentEditor& attachments = session.Editor().attachments;
  attachments.SelectQuestionFile(EntryIndex(arguments[0], attachments.QuestionList()));
}

constexpr std::string_view kScoreUsage =
    "mode same|custom | score end RANGE QUESTION | score value RANGE SCORE";

ScoreStep ScoreStepOf(const Arguments& arguments) {
  const std::u16string what = arguments[0].Text();
  if (what == u"mode" && arguments.size() == 2) return ModeStep(Utf16ToUtf8(arguments[1].Text()));
  if ((what != u"end" && what != u"value") || arguments.size() != 3) {
    throw CommandError("usage: score " + std::string(kScoreUsage));
  }
  const auto kind = what == u"end" ? ScoreStep::Kind::End : ScoreStep::Kind::Score;
  return RangeStep(kind, arguments[1].Text(), arguments[2].Text());
}

/// One line is one score setup, accepted.
void Score(EditSession& session, const Arguments& arguments) {
  const std::vector<ScoreStep> steps{ScoreStepOf(arguments)};
  ScoreSetupCommand(session.Editor(), [&](ScoreSetup& setup) {
    TakeScoreSteps(setup, steps, session.Streams());
    return true;
  }).Run();
}

void State(EditSession& session, const Arguments&) {
  session.Streams().out << EditorStateToJson(session.Editor()) << std::endl;
}

const EditCommand kCommands[] = {
    {"new", "", 0, [](EditSession& session, const Arguments&) { session.Editor().files.NewExam(); }},
    {"open", "FILE", 1, Open},
    {"save", "", 0, Save},
    {"saveas", "FILE", 1, SaveAs},
    {"close", "", 0, Close},
    {"reply", "yes|no|cancel   (answers the next save question)", 1, Reply},
    {"next", "", 0, Call<&QuestionEditor::GoNext>},
    {"prev", "", 0, Call<&QuestionEditor::GoPrevious>},
    {"forward10", "", 0, Call<&QuestionEditor::GoForward10>},
    {"back10", "", 0, Call<&QuestionEditor::GoBack10>},
    {"insert", "", 0, Call<&QuestionEditor::InsertHere>},
    {"delete", "", 0, Call<&QuestionEditor::DeleteHere>},
    {"move", "A B   (question A gets number B)", 2, MoveQuestion},
    {"duplicate", "N", 1, DuplicateQuestion},
    {"take", "FILE M-K [after N]   (questions of another exam; default: after the current question)", 2,
     TakeQuestions, 2},
    {"kind", KindWords(), 1, Kind},
    {"random", "", 0, Call<&QuestionEditor::CycleRandomMode>},
    {"separator", "", 0, Call<&QuestionEditor::AppendListSeparator>},
    {"title", "TEXT", 1, EditText<FormField::Title>},
    {"text", "TEXT", 1, EditText<FormField::Text>},
    {"option", "A|B|C|D|E TEXT", 2, Option},
    {"answer", "TEXT", 1, EditText<FormField::Answer>},
    {"essay", "TEXT", 1, EditText<FormField::Essay>},
    {"check", "A|B|C|D|E", 1,
     [](EditSession& session, const Arguments& arguments) { Tick(session, arguments, true); }},
    {"uncheck", "A|B|C|D|E", 1,
     [](EditSession& session, const Arguments& arguments) { Tick(session, arguments, false); }},
    {"attach", "FILE", 1,
     [](EditSession& session, const Arguments& arguments) {
       Attach(session, AttachedTo::Question, arguments[0]);
     }},
    {"attach-exam", "FILE", 1,
     [](EditSession& session, const Arguments& arguments) {
       Attach(session, AttachedTo::Exam, arguments[0]);
     }},
    {"remove", "INDEX   (of an attached file of the question, from 0)", 1, Remove},
    {"remove-exam", "INDEX", 1, RemoveExam},
    {"select", "INDEX", 1, Select},
    {"oral", "", 0, SwitchOral},
    {"score", kScoreUsage, 2, Score, 1},
    {"import", "DOCUMENT REPOSITORY [continue|new] [pictures X] [formulas X]   (X: give-up|ignore|force)", 2,
     Import, 5},
    {"undo-import", "", 0, UndoImport},
    {"undo", "", 0, Undo},
    {"redo", "", 0, Redo},
    {"find", "TEXT [--pattern] [--case] [--word]", 1, Find, 3},
    {"replace", "TEXT REPLACEMENT [--pattern] [--case] [--word]   (\\1 to \\9: groups of the pattern)", 2,
     Replace, 3},
    {"state", "  (prints one JSON line)", 0, State},
};

}  // namespace

const EditCommand* FindEditCommand(std::string_view name) {
  const auto* found = std::ranges::find(kCommands, name, &EditCommand::name);
  return found == std::end(kCommands) ? nullptr : found;
}

std::string EditCommandHelp() {
  std::string help;
  for (const EditCommand& command : kCommands) {
    help += "  " + std::string(command.name) + " " + std::string(command.usage) + "\n";
  }
  return help;
}

}  // namespace quorvantis::cli
