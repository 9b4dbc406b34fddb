// SPDX-License-Identifier: MIT
#include "shell/commands/ScoreSetupCommand.h"

namespace quorvantis {

bool ScoreSetupCommand::Run() {
  FrameSetExam& exam = editor_.state.document;
  editor_.questions.StoreCurrentQuestion();
  exam.CountQuestions();
  ScoreSetup setup;
  setup.SetQuestionCount(exam.questionCount);
  setup.SetDistribution(DistributionOf(exam));
  const bool accepted = edit_(setup);
  setup.ReadBack();
  if (!accepted) return false;
  ScoreDistribution distribution;
  setup.GetDistribution(distribution);
  StoreDistribution(distribution, exam);
  editor_.state.MarkModified();
  return true;
}

}  // namespace quorvantis
