// SPDX-License-Identifier: MIT
#include "desktop/main/WindowMenus.h"

#include "desktop/controls/FieldKeys.h"
#include "desktop/controls/QtText.h"
#include "model/QuestionKinds.h"
#include "platform/texts/AskedTexts.h"
#include "platform/texts/BankTexts.h"
#include "platform/texts/CheckTexts.h"
#include "platform/texts/DrawTexts.h"
#include "platform/texts/ExchangeTexts.h"
#include "platform/texts/ImportTexts.h"
#include "platform/texts/MenuTexts.h"
#include "platform/texts/OverviewTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "platform/texts/SearchTexts.h"
#include "platform/texts/SheetTexts.h"
#include "platform/texts/StudioTexts.h"
#include "platform/texts/VersionTexts.h"

#include <cstddef>
#include <iterator>
#include <utility>

namespace quorvantis {
namespace {

/// The places of the toolbar's buttons and of the small ones, in their order.
enum Tool : std::size_t {
  kNewTool,
  kOpenTool,
  kImportTool,
  kSaveTool,
  kSaveAsTool,
  kScoreTool,
  kAttachTool,
  kPreviewTool,
  kPrintTool
};
enum Step : std::size_t {
  kBack10Step,
  kPreviousStep,
  kNextStep,
  kForward10Step,
  kInsertStep,
  kDeleteStep,
  kAttachStep
};

MenuEntry Separator() {
  return {};
}

bool IsUsable(const QWidget& control) {
  return control.isEnabled() && control.isVisibleTo(control.window());
}

}  // namespace

std::vector<MenuTable> WindowMenus::Tables() const {
  return {File(), Edit(), Question(), Exam(), Help()};
}

MenuTable WindowMenus::File() const {
  using namespace text_id;
  MenuEntry recent{.name = "fileRecent",
                   .caption = Text(kOpenRecent),
                   .canAct = commands_.hasRecent,
                   .entriesNow = commands_.recent};
  MenuEntry exports{.name = "fileExport",
                    .caption = Text(kExport),
                    .entries = {
                        {.name = "exportDocument",
                         .caption = Text(kExportDocument),
                         .command = [&files = editor_.files] { files.ExportDocument(); }},
                        {.name = "exportPdf", .caption = Text(kExportPdf), .command = commands_.exportPdf},
                        {.name = "exportQuestions",
                         .caption = Text(kExchangeExportEntry),
                         .command = commands_.exportQuestions},
                    }};
  return {"menuFile",
          Text(kFileMenu),
          {
              OfTool(kNewTool, "fileNew", kNew),
              OfTool(kOpenTool, "fileOpen", kOpen),
              std::move(recent),
              Separator(),
              OfTool(kSaveTool, "fileSave", kSave),
              OfTool(kSaveAsTool, "fileSaveAs", kSaveAs),
              Separator(),
              OfTool(kImportTool, "fileImport", kImportExam),
              {.name = "fileImportPaper", .caption = Text(kStudioEntry), .command = commands_.importPaper},
              {.name = "fileImportQuestions",
               .caption = Text(kExchangeImportEntry),
               .command = commands_.importQuestions},
              std::move(exports),
              Separator(),
              OfTool(kPreviewTool, "filePreview", kPreview),
              OfTool(kPrintTool, "filePrint", kPrint),
              Separator(),
              {.name = "fileQuit",
               .caption = Text(kQuit),
               .keys = {Qt::CTRL | Qt::Key_Q},
               .ownsKeys = true,
               .command = commands_.quit},
          }};
}

MenuEntry WindowMenus::Undo() const {
  HistoryCommands& history = *commands_.history;
  return {.name = "editUndo",
          .keys = UndoKeys(),
          .ownsKeys = true,
          .command = [&history] { history.Undo(); },
          .canAct = [&history] { return history.CanUndo(); },
          .captionNow = [&history] { return history.UndoCaption(); }};
}

MenuEntry WindowMenus::Redo() const {
  HistoryCommands& history = *commands_.history;
  return {.name = "editRedo",
          .keys = RedoKeys(),
          .ownsKeys = true,
          .command = [&history] { history.Redo(); },
          .canAct = [&history] { return history.CanRedo(); },
          .captionNow = [&history] { return history.RedoCaption(); }};
}

MenuEntry WindowMenus::Search(const char* name, int text, const QKeySequence& key,
                              void (SearchCommands::*command)()) const {
  return {.name = name,
          .caption = Text(text),
          .keys = {key},
          .ownsKeys = true,
          .command = [search = commands_.search, command] { (search->*command)(); }};
}

/// The fields themselves react to the keys of the clipboard.
MenuTable WindowMenus::Edit() const {
  using namespace text_id;
  FocusedField& field = field_;
  const auto selects = [&field] { return field.HasSelection(); };
  return {
      "menuEdit",
      Text(kEditMenu),
      {
          Undo(),
          Redo(),
          {.name = "editUndoImport",
           .caption = Text(kUndoImport),
           .command = commands_.undoImport,
           .canAct = commands_.canUndoImport},
          Separator(),
          {.name = "editCut",
           .caption = Text(kCut),
           .keys = {Qt::CTRL | Qt::Key_X},
           .command = [&field] { field.Cut(); },
           .canAct = selects},
          {.name = "editCopy",
           .caption = Text(kCopy),
           .keys = {Qt::CTRL | Qt::Key_C},
           .command = [&field] { field.Copy(); },
           .canAct = selects},
          {.name = "editPaste",
           .caption = Text(kPaste),
           .keys = {Qt::CTRL | Qt::Key_V},
           .command = [&field] { field.Paste(); },
           .canAct = [&field] { return field.CanPaste(); }},
          Separator(),
          {.name = "editSelectAll",
           .caption = Text(kSelectAll),
           .keys = {Qt::CTRL | Qt::Key_A},
           .command = [&field] { field.SelectAll(); },
           .canAct = [&field] { return field.HasText(); }},
          Separator(),
          Search("editFind", kMenuFind, Qt::CTRL | Qt::Key_F, &SearchCommands::Find),
          Search("editReplace", kMenuReplace, Qt::CTRL | Qt::Key_H, &SearchCommands::Replace),
          Search("editFindNext", kFindNext, Qt::Key_F3, &SearchCommands::FindNext),
          Search("editFindPrevious", kFindPrevious, Qt::SHIFT | Qt::Key_F3, &SearchCommands::FindPrevious),
      }};
}

MenuTable WindowMenus::Question() const {
  using namespace text_id;
  const AnswerControls& answers = controls_.answers;
  MenuEntry toAnswers{.name = "questionAnswers",
                      .caption = Text(kGoToAnswers),
                      .keys = KeysOf(answers.answer),
                      .command = [&answers] { Act(answers.FirstField()); },
                      .canAct = [&answers] { return answers.FirstField() != nullptr; }};
  MenuTable menu{"menuQuestion",
                 Text(kQuestionMenu),
                 {
                     OfStep(kInsertStep, "questionInsert", kInsertQuestion),
                     OfStep(kDeleteStep, "questionDelete", kDeleteQuestion),
                     Separator(),
                     Kind("questionChoice", kChoice, QuestionKind::Choice),
                     Kind("questionFillIn", kFillIn, QuestionKind::FillIn),
                     Kind("questionEssay", kEssay, QuestionKind::Essay),
                     Kind("questionOral", kOral, QuestionKind::Oral),
                     Separator(),
                     RightAnswers(),
                     For(controls_.answers.separator, "questionSeparator", kAnotherAnswer),
                     OfStep(kAttachStep, "questionAttach", kAttachFile),
                     OralSwitch(),
                     Separator(),
                     OfStep(kPreviousStep, "questionPrevious", kPrevious),
                     OfStep(kNextStep, "questionNext", kNext),
                     OfStep(kBack10Step, "questionBack10", kBackward10),
                     OfStep(kForward10Step, "questionForward10", kForward10),
                     Separator(),
                     For(controls_.question.text, "questionText", kGoToText),
                     std::move(toAnswers),
                 }};
  std::vector<MenuEntry> whole = WholeQuestion();
  constexpr std::ptrdiff_t kAfterDelete = 2;
  menu.entries.insert(menu.entries.begin() + kAfterDelete, std::make_move_iterator(whole.begin()),
                      std::make_move_iterator(whole.end()));
  return menu;
}

/// Without keys: in the overview these act on the selected questions.
std::vector<MenuEntry> WindowMenus::WholeQuestion() const {
  using namespace text_id;
  ShownQuestionCommands& tools = tools_;
  const auto any = [&tools] { return tools.HasQuestion(); };
  return {{.name = "questionDuplicate",
           .caption = Text(kDuplicateQuestion),
           .command = [&tools] { tools.Duplicate(); },
           .canAct = any},
          Separator(),
          {.name = "questionMoveUp",
           .caption = Text(kMoveUp),
           .command = [&tools] { tools.MoveUp(); },
           .canAct = [&tools] { return tools.CanMoveUp(); }},
          {.name = "questionMoveDown",
           .caption = Text(kMoveDown),
           .command = [&tools] { tools.MoveDown(); },
           .canAct = [&tools] { return tools.CanMoveDown(); }},
          {.name = "questionMoveTo",
           .caption = Text(kMoveTo),
           .command = [&tools] { tools.MoveTo(); },
           .canAct = any},
          Separator(),
          {.name = "questionCopy",
           .caption = Text(kCopyQuestion),
           .command = [&tools] { tools.Copy(); },
           .canAct = any},
          {.name = "questionPaste",
           .caption = Text(kPasteQuestion),
           .command = [&tools] { tools.Paste(); },
           .canAct = [&tools] { return tools.CanPaste(); }},
          {.name = "questionInsertFromExam", .caption = Text(kInsertFromExam), .command = [&tools] {
             tools.InsertFromExam();
           }}};
}

MenuTable WindowMenus::Exam() const {
  using namespace text_id;
  return {"menuExam",
          Text(kExamMenu),
          {
              {.name = "examOverview",
               .caption = Text(kOverviewEntry),
               .keys = {Qt::CTRL | Qt::Key_L},
               .ownsKeys = true,
               .command = [&tools = tools_] { tools.ShowOverview(); }},
              {.name = "examCheck",
               .caption = Text(kCheckEntry),
               .keys = {Qt::Key_F8},
               .ownsKeys = true,
               .command = [check = commands_.check] { check->Open(); }},
              {.name = "examBank",
               .caption = Text(kBankEntry),
               .keys = {Qt::CTRL | Qt::Key_B},
               .ownsKeys = true,
               .command = commands_.bank},
              {.name = "examDraw", .caption = Text(kDrawEntry), .command = commands_.draw},
              {.name = "examAskedBefore", .caption = Text(kAskedEntry), .command = commands_.askedBefore},
              Separator(),
              For(controls_.exam.title, "examTitle", kGoToTitle),
              Random(),
              Separator(),
              OfTool(kScoreTool, "examScores", kScoreSettings),
              OfTool(kAttachTool, "examAttach", kAttachFiles),
              Separator(),
              Sheets(),
              {.name = "examVersions", .caption = Text(kVersionsEntry), .command = commands_.versions},
          }};
}

MenuEntry WindowMenus::Sheets() const {
  using namespace text_id;
  SheetCommands& sheets = *commands_.sheets;
  const auto show = [&](const char* name, int text, Sheet sheet) {
    return MenuEntry{
        .name = name, .caption = Text(text), .command = [&sheets, sheet] { sheets.Show(sheet); }};
  };
  return {.name = "examSheets",
          .caption = Text(kSheetsMenu),
          .entries = {show("sheetPaper", kSheetsPaper, Sheet::Paper),
                      show("sheetSolutions", kSheetsSolutions, Sheet::Solutions),
                      show("sheetKey", kSheetsKey, Sheet::Key),
                      show("sheetAnswers", kSheetsAnswers, Sheet::Answers),
                      Separator(),
                      {.name = "sheetLarge",
                       .caption = Text(kSheetsLarge),
                       .command = [&sheets] { sheets.SwitchLargePrint(); },
                       .isChecked = [&sheets] { return sheets.IsLargePrint(); }}}};
}

MenuTable WindowMenus::Help() const {
  using namespace text_id;
  return {"menuHelp",
          Text(kHelpMenu),
          {
              {.name = "helpGuide", .caption = Text(kGuide), .command = commands_.guide},
              {.name = "helpKeys", .caption = Text(kKeys), .command = commands_.keys},
              Separator(),
              {.name = "helpAbout", .caption = Text(kAboutProgram), .command = commands_.about},
          }};
}

MenuEntry WindowMenus::Kind(const char* name, int text, QuestionKind kind) const {
  MenuEntry entry = For(controls_.question.kinds->button(static_cast<int>(kind)), name, text);
  entry.isChecked = [&state = editor_.state, kind] { return state.CurrentKind() == kind; };
  return entry;
}

MenuEntry WindowMenus::RightAnswers() const {
  static constexpr const char* kNames[] = {"rightA", "rightB", "rightC", "rightD", "rightE"};
  static_assert(std::size(kNames) == kOptionCount);
  MenuEntry menu{.name = "questionRight", .caption = Text(text_id::kRightAnswers)};
  menu.canAct = [box = controls_.answers.boxes.front()] { return IsUsable(*box); };
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    MenuEntry entry = For(controls_.answers.boxes[i], kNames[i], 0);
    entry.caption = controls_.answers.boxes[i]->text();
    entry.isChecked = [&form = editor_.questions.Form(), i] { return form.checks[i] != CheckState::Off; };
    menu.entries.push_back(std::move(entry));
  }
  return menu;
}

/// Also while its button is hidden.
MenuEntry WindowMenus::OralSwitch() const {
  MenuEntry entry = For(controls_.question.oralToggle, "questionOralSwitch", text_id::kOralOff);
  const auto canAct = [&state = editor_.state] { return AnswerOf(state.CurrentKind()).oral; };
  entry.command = [&files = editor_.attachments] { files.ToggleOral(); };
  entry.captionNow = [&files = editor_.attachments, canAct] {
    if (canAct()) files.ReadOralFlag();
    return ToQString(files.OralToggleCaption());
  };
  entry.canAct = canAct;
  return entry;
}

/// One command that goes through three states, as the box in the window does; the caption tells the present
/// one.
MenuEntry WindowMenus::Random() const {
  MenuEntry entry = For(controls_.exam.random, "examRandom", text_id::kRandom);
  entry.isChecked = [&form = editor_.questions.Form()] { return form.random != RandomMode::Off; };
  entry.captionNow = [&questions = editor_.questions] { return ToQString(questions.RandomCaption()); };
  return entry;
}

MenuEntry WindowMenus::For(QWidget* control, const char* name, int text) const {
  return {.name = name,
          .caption = text == 0 ? QString() : Text(text),
          .keys = KeysOf(control),
          .command = [control] { Act(control); },
          .canAct = [control] { return IsUsable(*control); }};
}

MenuEntry WindowMenus::OfTool(std::size_t tool, const char* name, int text) const {
  return For(controls_.toolbar.InOrder()[tool], name, text);
}

MenuEntry WindowMenus::OfStep(std::size_t step, const char* name, int text) const {
  return For(controls_.question.navigation.InOrder()[step], name, text);
}

QString WindowMenus::Text(int number) const {
  return ToQString(strings_.Text(number));
}

}  // namespace quorvantis
