// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPrinter>
#include <QTemporaryDir>

#include <filesystem>
#include <functional>
#include <vector>

namespace quorvantis {

/// Prints sheets with numbers of their pages. The browser cannot number pages on a printer, but its PDF files
/// get numbers; so their pages go to the printer, as pictures like those that the browser would send.
class SheetsOnPrinter : public QObject {
 public:
  using Done = std::function<void(bool succeeded)>;

  /// `printer` must outlive this.
  explicit SheetsOnPrinter(QPrinter& printer) : printer_(printer) {}

  /// Whether the program that draws the pages is installed.
  static bool IsPossible();

  /// The PDF file, of which the browser prints all pages first.
  std::filesystem::path Draft() const;

  /// Prints what the user has chosen of the draft. `done` is called once, later.
  void Print(bool isRightToLeft, Done done);

  /// Puts these pictures, one for each page of the document, on the printer: those in its ranges, in its
  /// order.
  static bool Paint(QPrinter& printer, const std::vector<std::filesystem::path>& pages);

 private:
  QPrinter& printer_;
  QTemporaryDir folder_;
};

}  // namespace quorvantis
