// SPDX-License-Identifier: MIT
#include "desktop/dialogs/QtUserDialogs.h"

#include "desktop/controls/QtText.h"
#include "desktop/dialogs/FileFilters.h"
#include "desktop/dialogs/HarmlessFileDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

namespace quorvantis {
namespace {

/// Texts are shown as they are: a file name may look like markup. `usual` is the button of the Enter key; Qt
/// chooses one if it is none.
QMessageBox::StandardButton Ask(QMessageBox::Icon icon, const QString& text,
                                QMessageBox::StandardButtons buttons, QWidget* parent,
                                QMessageBox::StandardButton usual = QMessageBox::NoButton) {
  QMessageBox box(icon, QStringLiteral("Quorvantis"), text, buttons, parent);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(usual);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

void OfferFilters(QFileDialog& dialog, const std::vector<FileFilter>& filters) {
  QStringList names;
  for (const FileFilter& filter : filters) names.push_back(filter.ForQt());
  dialog.setNameFilters(names);
  dialog.setOption(QFileDialog::HideNameFilterDetails);  // the labels include them
}

/// The chosen filter, which the dialog returns with or without its patterns. Null if it is none of them.
const FileFilter* SelectedFilter(const QFileDialog& dialog, const std::vector<FileFilter>& filters) {
  const QString selected = dialog.selectedNameFilter();
  for (const FileFilter& filter : filters) {
    if (selected == filter.ForQt() || selected == filter.label) return &filter;
  }
  return nullptr;
}

QString SelectedExtension(const QFileDialog& dialog, const std::vector<FileFilter>& filters,
                          const QString& fallback) {
  const FileFilter* const selected = SelectedFilter(dialog, filters);
  return selected != nullptr ? selected->FirstExtension() : fallback;
}

/// Qt would begin in the program's folder, where users have no files.
QString ExistingFolder(const std::filesystem::path& folder) {
  std::error_code ignored;
  if (std::filesystem::is_directory(folder, ignored)) return PathToQString(folder);
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

}  // namespace

void QtUserDialogs::ShowError(std::u16string_view text) {
  Ask(QMessageBox::Critical, ToQString(text), QMessageBox::Ok, parent_);
}

void QtUserDialogs::ShowWarning(std::u16string_view text) {
  Ask(QMessageBox::Warning, ToQString(text), QMessageBox::Ok, parent_);
}

void QtUserDialogs::ShowDone(std::u16string_view text) {
  Ask(QMessageBox::Critical, ToQString(text), QMessageBox::Ok, parent_);
}

bool QtUserDialogs::AskYesNo(std::u16string_view question) {
  return Ask(QMessageBox::Warning, ToQString(question), QMessageBox::Yes | QMessageBox::No, parent_) ==
         QMessageBox::Yes;
}

bool QtUserDialogs::AskYesToLose(std::u16string_view question) {
  return Ask(QMessageBox::Warning, ToQString(question), QMessageBox::Yes | QMessageBox::No, parent_,
             QMessageBox::No) == QMessageBox::Yes;
}

/// Many lines would make the box higher than the screen, so they get a field of their own.
LossAnswer QtUserDialogs::AskAboutLosses(const LossQuestion& question) {
  constexpr qsizetype kMostLines = 10;
  QStringList lines;
  for (const std::u16string& loss : question.losses) lines.push_back(ToQString(loss));
  QMessageBox box(QMessageBox::Warning, QStringLiteral("Quorvantis"), ToQString(question.heading),
                  QMessageBox::NoButton, parent_);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(lines.mid(0, kMostLines).join('\n'));
  if (lines.size() > kMostLines) box.setDetailedText(lines.join('\n'));
  const QAbstractButton* whole = nullptr;
  if (!question.storeWhole.empty())
    whole = box.addButton(ToQString(question.storeWhole), QMessageBox::YesRole);
  const QAbstractButton* anyway = box.addButton(ToQString(question.saveAnyway), QMessageBox::DestructiveRole);
  QPushButton* back = box.addButton(ToQString(question.goBack), QMessageBox::RejectRole);
  box.setDefaultButton(back);
  box.setEscapeButton(back);
  box.exec();
  if (whole != nullptr && box.clickedButton() == whole) return LossAnswer::StoreWhole;
  return box.clickedButton() == anyway ? LossAnswer::SaveAnyway : LossAnswer::GoBack;
}

SaveAnswer QtUserDialogs::AskSave(std::u16string_view question) {
  const auto answer = Ask(QMessageBox::Question, ToQString(question),
                          QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, parent_);
  return answer == QMessageBox::Yes  ? SaveAnswer::Yes
         : answer == QMessageBox::No ? SaveAnswer::No
                                     : SaveAnswer::Cancel;
}

void QtUserDialogs::BeginIn(const std::filesystem::path& folder) {
  if (folder == folder_) return;
  folder_ = folder;
  for (auto& [filters, use] : lastUses_) use.folder.clear();
  if (keepFolder_) keepFolder_(folder);
}

std::optional<std::filesystem::path> QtUserDialogs::ChooseFileToOpen(const FileDialogRequest& request) {
  LastUse& last = lastUses_[request.filter];
  const std::vector<FileFilter> filters = ParseFilters(request.filter);
  QFileDialog dialog(parent_);
  dialog.setFileMode(QFileDialog::ExistingFile);
  MakeHarmless(dialog);
  const std::filesystem::path& usual = last.folder.empty() ? folder_ : last.folder;
  dialog.setDirectory(ExistingFolder(request.folder.empty() ? usual : request.folder));
  OfferFilters(dialog, filters);
  if (!last.filter.isEmpty()) dialog.selectNameFilter(last.filter);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  const std::filesystem::path file = QStringToPath(dialog.selectedFiles().front());
  const FileFilter* const selected = SelectedFilter(dialog, filters);
  last = {selected != nullptr ? selected->ForQt() : QString(), file.parent_path()};
  return file;
}

/// The dialog would ask about overwriting before the extension is added.
std::optional<std::filesystem::path> QtUserDialogs::ChooseFileToSave(const FileDialogRequest& request) {
  const std::vector<FileFilter> filters = ParseFilters(request.filter);
  QFileDialog dialog(parent_);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  MakeHarmless(dialog);
  dialog.setDirectory(ExistingFolder(request.folder.empty() ? folder_ : request.folder));
  OfferFilters(dialog, filters);
  dialog.selectFile(ToQString(request.initialName));
  while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
    const QString extension = SelectedExtension(dialog, filters, ToQString(request.defaultExtension));
    const QString path = WithExtension(dialog.selectedFiles().front(), filters, extension);
    if (MayOverwrite(path)) return QStringToPath(path);
  }
  return std::nullopt;
}

bool QtUserDialogs::MayOverwrite(const QString& path) {
  if (!QFileInfo::exists(path)) return true;
  const QString question = QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(path);
  return AskYesToLose(question.toStdU16String());
}

}  // namespace quorvantis
