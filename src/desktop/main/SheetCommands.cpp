// SPDX-License-Identifier: MIT
#include "desktop/main/SheetCommands.h"

#include "platform/convert/Later.h"
#include "preview/SheetLayout.h"
#include "render/sheets/ReadingDirection.h"
#include "shell/commands/SheetCommand.h"

namespace quorvantis {

void SheetCommands::Show(Sheet sheet) {
  SheetCommand(editor_, Request(sheet), [this, sheet](const std::filesystem::path& page) {
    PreviewWindow& window = previews_.renew({});
    connect(&window, &PreviewWindow::PageWished, this,
            [this, &window, sheet](const QString& wish) { Obey(window, sheet, wish); });
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

void SheetCommands::SavePdf(Sheet sheet) {
  const std::filesystem::path target = pdf_.ChooseTarget(editor_.questions.Form().title);
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
