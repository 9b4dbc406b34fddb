// SPDX-License-Identifier: MIT
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/LossMessages.h"
#include "cli/UnseenEditor.h"
#include "examfile/ExamFileWriter.h"
#include "model/LongAnswerFlags.h"
#include "shell/commands/ScoreSetupCommand.h"

namespace quorvantis::cli {
namespace {

/// Reads an exam to save it again, keeping long answers long although nobody has edited them.
void LoadWhole(ExamSession& session, const std::filesystem::path& file) {
  session.Load(file);
  session.RequireUnpacked(file);
  session.services.longAnswerFlags.SetWhereNeeded(session.exam);
}

}  // namespace

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

}  // namespace quorvantis::cli
