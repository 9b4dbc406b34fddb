// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/ExamServices.h"
#include "preview/PagePrinter.h"

#include <QObject>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace quorvantis {

/// Prints an exam into a PDF file. The browser writes to a file in the application folder first; when that is
/// complete, it replaces the one that the user wants in one step. Until then the mouse pointer shows that
/// something is being done, since documents in the exam may take half a minute; then the user is told the
/// result.
class PdfExport : public QObject {
  Q_OBJECT

 public:
  /// Both must outlive this, and this every printer that it watches.
  PdfExport(const ExamServices& services, QWidget& window) : services_(services), window_(window) {}

  /// Where the next file goes; asks the user. Empty if the user cancelled.
  std::filesystem::path ChooseTarget(std::u16string_view title) const;

  /// For the window that is to print the next file: no printer needs to be chosen.
  PagePrinter::AskForPrinter MakePrinter();

  /// Works on the file that was printed before it goes to its place.
  using Complete = std::function<void(const std::filesystem::path& draft)>;

  /// The printer of that window, whose file is for `target`. `complete` may be empty.
  void Watch(const PagePrinter& printer, const std::filesystem::path& target, Complete complete = {});

 private:
  std::filesystem::path Draft(int number) const;
  void Finish(bool printed, int number, const std::filesystem::path& target);
  void TellWritten(const std::u16string& message);

  const ExamServices& services_;
  QWidget& window_;
  int drafts_ = 0;  ///< a window may still print while the next one begins
};

}  // namespace quorvantis
