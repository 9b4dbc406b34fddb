// SPDX-License-Identifier: MIT
#include "desktop/main/commands/StudioCommands.h"

#include "host/ImportRules.h"
#include "host/SavedRules.h"
#include "import/ExamImport.h"
#include "learn/ForeseenImport.h"
#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/ProgramTexts.h"
#include "platform/texts/StudioTexts.h"
#include "text/PathText.h"

#include <utility>

namespace quorvantis {

StudioWindow& StudioCommands::Window() {
  if (studio_ == nullptr) studio_ = new StudioWindow(editor_.state.document.Services(), Services(), &window_);
  return *studio_;
}

StudioServices StudioCommands::Services() {
  StudioServices services;
  services.choosePaper = [this] { return ChoosePaper(); };
  services.readPaper = [&papers = papers_](const std::filesystem::path& paper,
                                           const CancelHook& isCancelled) {
    return OpenPaper(papers, paper, isCancelled);
  };
  services.holdText = [this](std::u16string text) { return HoldText(std::move(text)); };
  services.exam = [this] { return Exam(); };
  services.currentQuestion = [this] { return editor_.state.CurrentQuestion(); };
  services.import = [this](const StudioImport& wanted) { return Import(wanted); };
  services.saveRules = [this](const Repository& rules, std::filesystem::path& file) {
    return SaveRules(rules, file);
  };
  return services;
}

void StudioCommands::MainWindowCloses() {
  if (studio_ != nullptr) studio_->hide();
}

void StudioCommands::ImportPaper() {
  WorkOutRules({});
}

void StudioCommands::WorkOutRules(const std::filesystem::path& paper) {
  const auto chosen = paper.empty() ? ChoosePaper() : paper;
  if (chosen) {
    Window().OpenPaper(*chosen);
  } else {
    Window().Open();
  }
}

std::optional<std::filesystem::path> StudioCommands::ChoosePaper() {
  const ExamServices& services = editor_.state.document.Services();
  const std::u16string filter =
      services.strings.Text(text_id::kPapers) + services.strings.Text(text_id::kImportFilter);
  return services.dialogs.ChooseFileToOpen({filter, {}, {}});
}

/// No file has this name: it has no folder.
std::filesystem::path StudioCommands::HoldText(std::u16string text) {
  std::filesystem::path name =
      TextToPath(editor_.state.document.Services().strings.Text(text_id::kPastedPaper));
  papers_.Hold(name, std::move(text));
  return name;
}

ExamPaper StudioCommands::Exam() const {
  LongAnswerFlags unused;
  return editor_.questions.StoredExam(unused);
}

/// Unless questions come in, the exam and the question that is shown stay.
bool StudioCommands::Import(const StudioImport& wanted) {
  const int shown = editor_.state.CurrentQuestion();
  std::optional<int> number;
  if (wanted.wish.where == ImportWish::Where::From) number = ForeseeImport(Exam(), 0, wanted.wish).first;
  const ImportPlace place = GoToPlace(wanted.wish);
  const ImportOutcome outcome = import_.ImportChosen(wanted.paper, wanted.rules, place, number);
  const bool isDone = outcome == ImportOutcome::Imported;
  if (!isDone) editor_.questions.GoToQuestion(shown);
  return isDone;
}

ImportPlace StudioCommands::GoToPlace(const ImportWish& wish) {
  if (wish.where == ImportWish::Where::NewExam) return ImportPlace::NewExam;
  const int last = LastWithContent(Exam());
  if (last == 0) return ImportPlace::FirstQuestion;
  editor_.questions.GoToQuestion(last);
  return ImportPlace::AfterCurrentQuestion;
}

/// The program's own file stays as it is: its rules are copied to the application folder, unless that is the
/// program's. Unless the new rules are saved, there is no copy.
std::optional<std::u16string> StudioCommands::SaveRules(const Repository& rules,
                                                        std::filesystem::path& file) {
  const ExamServices& services = editor_.state.document.Services();
  file = services.applicationFolder / kImportRulesFile;
  std::error_code ignored;
  const bool isNew = !std::filesystem::exists(std::filesystem::symlink_status(file, ignored));
  if (isNew)
    ProvideImportRules(FindImportRules(services.applicationFolder).parent_path(), file.parent_path());
  const SavedRules saved = quorvantis::SaveRules(file, rules, services.codePage, services.files);
  if (saved.AreSaved()) {
    import_.SetRules(file);
    return std::nullopt;
  }
  if (isNew) std::filesystem::remove(file, ignored);
  return WhyNotSaved(saved, file, rules, services.strings);
}

}  // namespace quorvantis
