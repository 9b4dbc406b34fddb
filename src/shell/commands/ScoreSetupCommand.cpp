// SPDX-License-Identifier: MIT
#include "shell/commands/ScoreSetupCommand.h"

namespace quorvantis {

bool ScoreSetupCommand::Run() {
  editor_.questions.StoreCurrentQuestion();
  editor_.changes.CountQuestions();
  ScoreSetup setup;
  setup.SetQuestionCount(editor_.state.document.questionCount);
  setup.SetDistribution(DistributionOf(editor_.state.document));
  const bool accepted = edit_(setup);
  setup.ReadBack();
  if (!accepted) return false;
  ScoreDistribution distribution;
  setup.GetDistribution(distribution);
  ExamPaper scores;
  StoreDistribution(distribution, scores);
  editor_.changes.SetScores(scores);
  return true;
}

}  // namespace quorvantis
