// SPDX-License-Identifier: MIT
#include "cli/console/CommandError.h"
#include "cli/edit/EditSubcommands.h"
#include "cli/edit/ScoreSteps.h"
#include "cli/options/CommandOptions.h"
#include "cli/session/ExamSession.h"
#include "cli/session/LossMessages.h"
#include "cli/session/UnseenEditor.h"
#include "examfile/ExamFileWriter.h"
#include "model/LongAnswerFlags.h"
#include "shell/commands/ScoreSetupCommand.h"

namespace quorvantis::cli {
namespace {

struct ScoreRequest {
  std::filesystem::path exam;
  std::filesystem::path target;
  std::vector<ScoreStep> steps;
};

/// Reads an exam to save it again, keeping long answers long although nobody has edited them.
void LoadWhole(ExamSession& session, const std::filesystem::path& file) {
  session.Load(file);
  session.RequireUnpacked(file);
  session.services.longAnswerFlags.SetWhereNeeded(session.exam);
}

void Score(Console& console, const CommonOptions& options, const std::filesystem::path& exam,
           const std::filesystem::path& target, const std::vector<ScoreStep>& steps) {
  ExamSession session(console, options);
  LoadWhole(session, exam);
  UnseenEditor editor(session.exam);
  ScoreSetupCommand(editor.Editor(), [&](ScoreSetup& setup) {
    TakeScoreSteps(setup, steps, console);
    return true;
  }).Run();
  if (const auto error = ExamFileWriter(session.exam, session.services).Write(target)) {
    throw CommandError(target.string() + ": cannot be written: " + error.message());
  }
  TellSavingLosses(console, exam, session.exam);
}

/// An option that is one more step of the score setup. Parsed as soon as it is met, so that steps with
/// different option names keep their order on the command line.
void AddScoreStep(CLI::App& score, std::vector<ScoreStep>& steps, const char* name,
                  ScoreStep (*step)(std::string_view), const char* type, const char* description) {
  const auto take = [&steps, name, step](const std::string& text) {
    try {
      steps.push_back(step(text));
    } catch (const CommandError& problem) {
      throw CLI::ValidationError(name, problem.what());
    }
  };
  score.add_option_function<std::string>(name, take, description)->trigger_on_parse()->type_name(type);
}

}  // namespace

void AddScore(CLI::App& app, CommandContext& context) {
  CLI::App* score = AddCommand(app, context, "score", "Change the score distribution of an exam");
  const auto request = std::make_shared<ScoreRequest>();
  AddPath(*score, "EXAM", request->exam, "Exam file (.exm)");
  AddPath(*score, "OUT", request->target, "Exam file to write");
  const auto end = [](std::string_view text) { return AssignmentStep(ScoreStep::Kind::End, text); };
  const auto value = [](std::string_view text) { return AssignmentStep(ScoreStep::Kind::Score, text); };
  auto& steps = request->steps;
  AddScoreStep(*score, steps, "--mode", ModeStep, "same|custom", "One score for all questions, or ranges");
  AddScoreStep(*score, steps, "--end", end, "RANGE=QUESTION", "End a range (1 to 10) with this question");
  AddScoreStep(*score, steps, "--value", value, "RANGE=SCORE", "The score of each question of a range");
  score->footer(
      "Options take effect in the order given, as if typed into the score settings of the window,\n"
      "and may be repeated. Ends re-cut the neighbouring ranges and reset scores, so give ends first.");
  score->callback([&context, request] {
    Score(context.console, context.common, request->exam, request->target, request->steps);
  });
}

}  // namespace quorvantis::cli
