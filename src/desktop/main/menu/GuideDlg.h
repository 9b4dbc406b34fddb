// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

#include <filesystem>

namespace quorvantis {

/// The guide in the language with this identifier, otherwise in English: a page in the folder "guide" beside
/// the program.
std::filesystem::path FindGuide(int languageId);

/// Shows a page of the program's own. It may stay open beside the main window, and deletes itself when it is
/// closed. Nothing but the page is loaded, and links lead nowhere but into it.
class GuideDlg final : public QDialog {
  Q_OBJECT

 public:
  GuideDlg(const QString& caption, const QString& html, QWidget* parent);
};

}  // namespace quorvantis
