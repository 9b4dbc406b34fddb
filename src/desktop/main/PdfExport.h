// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/ExamServices.h"
#include "preview/PagePrinter.h"

#include <QObject>

#include <filesystem>

namespace quorvantis {

/// Prints an exam into a PDF file. The browser writes to a file in the application folder first; when that is
/// complete, it replaces the one that the user wants in one step. The user is told the result.
class PdfExport : public QObject {
  Q_OBJECT

 public:
  /// `services` must outlive this, and this every printer that it watches.
  explicit PdfExport(const ExamServices& services) : services_(services) {}

  /// Where the next file goes; asks the user. Empty if the user cancelled.
  std::filesystem::path ChooseTarget(std::u16string_view title) const;

  /// For the window that is to print the next file: no printer needs to be chosen.
  PagePrinter::AskForPrinter MakePrinter();

  /// The printer of that window, whose file is for `target`.
  void Watch(const PagePrinter& printer, const std::filesystem::path& target);

 private:
  std::filesystem::path Draft(int number) const;
  void Finish(bool printed, int number, const std::filesystem::path& target);

  const ExamServices& services_;
  int drafts_ = 0;  ///< a window may still print while the next one begins
};

}  // namespace quorvantis
