// SPDX-License-Identifier: MIT
#include "desktop/main/controls/AttachmentMenu.h"

#include "desktop/controls/QtText.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/FileTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "preview/FileKind.h"
#include "shell/commands/SaveCopyCommand.h"
#include "text/MessageText.h"

#include <QDesktopServices>
#include <QUrl>

namespace quorvantis {
namespace {

/// A menu caption in which "&" stands for itself.
QString MenuCaption(const std::u16string& text) {
  return ToQString(text).replace("&", "&&");
}

/// Exams are untrusted. Only files that a program displays are opened: no programs, and nothing that may run
/// scripts, as pages and SVG pictures do in a browser.
bool MayBeOpened(const AttachedFile& file) {
  if (ExtensionOf(file.copy) == "svg") return false;
  switch (KindOf(file.copy)) {
    case FileKind::PlainText:
    case FileKind::Document:
    case FileKind::Picture:
    case FileKind::Media:
      return true;
    default:
      return false;
  }
}

void OpenFile(const AttachedFile& file, const ExamServices& services) {
  if (!HasWorkCopy(file, services)) return;
  if (QDesktopServices::openUrl(QUrl::fromLocalFile(PathToQString(file.copy)))) return;
  services.dialogs.ShowError(FillMessage(services.strings.Text(text_id::kNoProgramOpens), {file.name}));
}

QAction* Add(QMenu& menu, const char* name, const std::u16string& caption, std::function<void()> command) {
  QAction* action = menu.addAction(MenuCaption(caption));
  action->setObjectName(name);
  QObject::connect(action, &QAction::triggered, &menu, std::move(command));
  return action;
}

}  // namespace

QMenu* MakeAttachmentMenu(const std::optional<AttachedFile>& selected, const std::function<void()>& remove,
                          const ExamServices& services, QWidget* parent) {
  auto* menu = new QMenu(parent);
  menu->setObjectName("attachmentMenu");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto text = [&services](int id) { return services.strings.Text(id); };
  const AttachedFile file = selected.value_or(AttachedFile{});
  Add(*menu, "openAttachment", text(text_id::kOpen), [file, &services] {
    OpenFile(file, services);
  })->setEnabled(selected && file.hasContent && MayBeOpened(file));
  Add(*menu, "saveCopy", text(text_id::kSaveCopy), [file, &services] {
    SaveCopyOf(file, services);
  })->setEnabled(selected.has_value());
  Add(*menu, "removeAttachment", text(text_id::kRemoveAttachment), remove)->setEnabled(selected.has_value());
  return menu;
}

void AddOralSwitch(QMenu& menu, AttachmentEditor& attachments) {
  attachments.ReadOralFlag();
  menu.addSeparator();
  Add(menu, "switchOral", attachments.OralToggleCaption(), [&attachments] { attachments.ToggleOral(); });
}

}  // namespace quorvantis
