// SPDX-License-Identifier: MIT
#include "desktop/main/commands/DrawCommands.h"

#include "bank/taking/BankSources.h"
#include "editor/WorkCopies.h"
#include "model/document/ExamServices.h"
#include "shell/commands/ReplaceCommand.h"

#include <memory>
#include <utility>

namespace quorvantis {

DrawCommands::DrawCommands(ExamEditor& editor, ShownQuestionCommands& questions, BankCommands& bank,
                           QWidget& window)
    : editor_(editor), questions_(questions), bank_(bank), window_(window) {
  bank.SetDraw([this] { Open(); });
}

void DrawCommands::Open() {
  if (!shown_) {
    DrawActions actions{[this](const std::vector<BankQuestion>& questions) { return Insert(questions); },
                        [this](const BankQuestion& question) { bank_.Show(question); },
                        [this] { return std::make_shared<const FrameSetExam>(SearchedExam(editor_)); }};
    shown_ = new DrawWindow(UsualBankPlace(), editor_.state.document.Services(), digest_, std::move(actions),
                            &window_);
  }
  shown_->Appear();
}

/// One step of the history, whatever exams the questions come from.
DrawnInsertion DrawCommands::Insert(const std::vector<BankQuestion>& questions) {
  const ExamServices& services = editor_.state.document.Services();
  BankSources sources(services, digest_, AttachmentWorkRoot(services.applicationFolder),
                      [this] { return editor_.attachments.TakeCopyNumber(); });
  DrawnInsertion insertion;
  std::vector<WholeQuestion> taken;
  taken.reserve(questions.size());
  for (std::size_t i = 0; i < questions.size(); ++i) {
    if (auto whole = sources.Take(questions[i]).whole)
      taken.push_back(std::move(*whole));
    else
      insertion.gone.insert(i);
  }
  if (taken.empty()) return insertion;
  insertion.told = questions_.InsertDrawn(std::move(taken));
  insertion.isRefused = insertion.told.isEmpty();
  return insertion;
}

}  // namespace quorvantis
