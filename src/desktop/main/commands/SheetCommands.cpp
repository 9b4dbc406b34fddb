// SPDX-License-Identifier: MIT
#include "desktop/main/commands/SheetCommands.h"

#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/convert/Later.h"
#include "platform/texts/SheetTexts.h"
#include "preview/SheetLayout.h"
#include "render/sheets/ReadingDirection.h"
#include "shell/commands/SheetCommand.h"

namespace quorvantis {
namespace {

/// What a sheet is; 0 for the paper, which is the exam itself.
int KindText(Sheet sheet) {
  switch (sheet) {
    case Sheet::Paper:
      return 0;
    case Sheet::Solutions:
      return text_id::kSheetSolutions;
    case Sheet::Key:
      return text_id::kSheetKey;
    case Sheet::Answers:
      return text_id::kSheetAnswerSheet;
  }
  return 0;
}

}  // namespace

void SheetCommands::Show(Sheet sheet) {
  SheetCommand(editor_, Request(sheet), [this, sheet](const std::filesystem::path& page) {
    PreviewWindow& window = previews_.renew({});
    connect(&window, &PreviewWindow::PageWished, this,
            [this, &window, sheet](const QString& wish) { Obey(window, sheet, wish); });
    window.Printer().NumberPages(RunsRightToLeft(editor_.state.document, languageIsRightToLeft_));
    window.Navigate(page);
    window.Place(0, 0);
    window.Show();
  }).Run();
}

/// The file dialog would lie below the window with the page.
void SheetCommands::Obey(PreviewWindow& window, Sheet sheet, const QString& wish) {
  if (wish == "SheetPrint") window.PrintByKeystroke();
  if (wish == "SheetClose" || wish == "SheetSave") window.Leave();
  if (wish == "SheetSave") Later(*this, {}, [this, sheet] { SavePdf(sheet); });
}

/// The sheets of an exam get different files.
std::u16string SheetCommands::FileTitle(Sheet sheet) const {
  const std::u16string& title = editor_.questions.Form().title;
  const int kind = KindText(sheet);
  if (kind == 0) return title;
  return title + u" - " + editor_.state.document.Services().strings.Text(kind);
}

void SheetCommands::SavePdf(Sheet sheet) {
  const std::filesystem::path target = pdf_.ChooseTarget(FileTitle(sheet));
  if (target.empty()) return;
  SheetCommand(editor_, Request(sheet), [this, &target](const std::filesystem::path& page) {
    const PreviewWindow& window = previews_.renew([choose = pdf_.MakePrinter()](QPrinter& printer) {
      printer.setPageLayout(SheetLayout());
      return choose(printer);
    });
    const bool isRightToLeft = RunsRightToLeft(editor_.state.document, languageIsRightToLeft_);
    pdf_.Watch(window.Printer(), target,
               [isRightToLeft](const std::filesystem::path& draft) { NumberSheets(draft, isRightToLeft); });
    previews_.print(page);
  }).Run();
}

}  // namespace quorvantis
