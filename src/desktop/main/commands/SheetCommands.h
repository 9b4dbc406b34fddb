// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/commands/PdfExport.h"
#include "editor/ExamEditor.h"
#include "preview/PreviewWindow.h"
#include "preview/PreviewWindows.h"
#include "render/sheets/SheetRequest.h"

#include <QObject>

#include <functional>

namespace quorvantis {

/// Papers, keys and answer sheets in the main window: each is shown over the whole screen, from where it is
/// printed or saved as a PDF file by the buttons above the page.
class SheetCommands : public QObject {
  Q_OBJECT

 public:
  /// What the main window does for its previews.
  struct Previews {
    /// Discards the preview window and returns a new hidden one. With a printer nobody is asked for one.
    std::function<PreviewWindow&(PagePrinter::AskForPrinter)> renew;
    /// Loads the page out of sight and prints it.
    std::function<void(const std::filesystem::path&)> print;
  };

  /// All must outlive this. `languageIsRightToLeft`: of the texts of the program.
  SheetCommands(ExamEditor& editor, PdfExport& pdf, bool languageIsRightToLeft, Previews previews)
      : editor_(editor),
        pdf_(pdf),
        languageIsRightToLeft_(languageIsRightToLeft),
        previews_(std::move(previews)) {}

  void Show(Sheet sheet);

  bool IsLargePrint() const { return largePrint_; }
  void SwitchLargePrint() { largePrint_ = !largePrint_; }

 private:
  void Obey(PreviewWindow& window, Sheet sheet, const QString& wish);
  void SavePdf(Sheet sheet);
  std::u16string FileTitle(Sheet sheet) const;
  SheetRequest Request(Sheet sheet) const { return {sheet, {}, largePrint_, languageIsRightToLeft_}; }

  ExamEditor& editor_;
  PdfExport& pdf_;
  const bool languageIsRightToLeft_;
  const Previews previews_;
  bool largePrint_ = false;
};

}  // namespace quorvantis
