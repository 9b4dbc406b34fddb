// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/WindowLayout.h"
#include "desktop/main/commands/CheckCommands.h"
#include "desktop/main/commands/HistoryCommands.h"
#include "desktop/main/commands/SearchCommands.h"
#include "desktop/main/commands/SheetCommands.h"
#include "desktop/main/menu/FocusedField.h"
#include "desktop/main/menu/MenuBar.h"
#include "desktop/overview/ShownQuestionCommands.h"
#include "editor/ExamEditor.h"
#include "platform/StringTable.h"

#include <functional>
#include <vector>

namespace quorvantis {

/// Makes the tables of the main window's menus. All commands of the window are there: a button's entry
/// presses the button and shows its keys. A new command gets its line here.
class WindowMenus {
 public:
  /// The commands that are neither a control's nor the editor's.
  struct Commands {
    std::function<bool()> hasRecent;
    std::function<std::vector<MenuEntry>()> recent;
    std::function<void()> importPaper;
    std::function<void()> importQuestions;
    std::function<void()> exportPdf;
    std::function<void()> exportQuestions;
    std::function<void()> quit;
    HistoryCommands* history;
    SearchCommands* search;
    SheetCommands* sheets;
    CheckCommands* check;
    std::function<void()> bank;
    std::function<void()> draw;
    std::function<void()> askedBefore;
    std::function<bool()> canUndoImport;
    std::function<void()> undoImport;
    std::function<void()> versions;
    std::function<void()> guide;
    std::function<void()> keys;
    std::function<void()> about;
  };

  /// All must outlive the menus, which outlive this. The controls must exist already.
  WindowMenus(const WindowControls& controls, ExamEditor& editor, ShownQuestionCommands& tools,
              FocusedField& field, const StringTable& strings, Commands commands)
      : controls_(controls),
        editor_(editor),
        tools_(tools),
        field_(field),
        strings_(strings),
        commands_(std::move(commands)) {}

  std::vector<MenuTable> Tables() const;

 private:
  MenuTable File() const;
  MenuTable Edit() const;
  MenuEntry Undo() const;
  MenuEntry Redo() const;
  MenuEntry Search(const char* name, int text, const QKeySequence& key,
                   void (SearchCommands::*command)()) const;
  MenuTable Question() const;
  MenuTable Exam() const;
  MenuEntry Sheets() const;
  MenuTable Help() const;
  MenuEntry Kind(const char* name, int text, QuestionKind kind) const;
  /// The commands for the question as a whole.
  std::vector<MenuEntry> WholeQuestion() const;
  MenuEntry RightAnswers() const;
  MenuEntry OralSwitch() const;
  MenuEntry Random() const;
  /// Presses or focuses a control, and can act while that can be used.
  MenuEntry For(QWidget* control, const char* name, int text) const;
  MenuEntry OfTool(std::size_t tool, const char* name, int text) const;
  MenuEntry OfStep(std::size_t step, const char* name, int text) const;
  QString Text(int number) const;

  WindowControls controls_;
  ExamEditor& editor_;
  ShownQuestionCommands& tools_;
  FocusedField& field_;
  const StringTable& strings_;
  Commands commands_;
};

}  // namespace quorvantis
