// SPDX-License-Identifier: MIT
#include "desktop/main/menu/MenuBar.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeySequence>
#include <QShortcut>

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

/// What follows a tab is shown where keys stand, without making the action react to them: a key that two
/// objects own works for neither.
QString EntryText(const MenuEntry& entry) {
  QString caption = entry.captionNow ? entry.captionNow() : entry.caption;
  caption.replace('&', "&&").replace('\t', ' ');
  return entry.keys.isEmpty() ? caption : caption + '\t' + KeyNames(entry.keys);
}

bool CanAct(const MenuEntry& entry) {
  return !entry.canAct || entry.canAct();
}

/// Assistive programs and keys run commands without opening the menu first.
void Run(const MenuEntry& entry) {
  if (!CanAct(entry)) return;
  QGuiApplication::inputMethod()->commit();
  entry.command();
}

void Refresh(QAction& action, const MenuEntry& entry) {
  action.setText(EntryText(entry));
  action.setEnabled(CanAct(entry));
  if (entry.isChecked) action.setChecked(entry.isChecked());
}

void Fill(QMenu& menu, const std::vector<MenuEntry>& entries);

QAction* AddSubmenu(QMenu& menu, const MenuEntry& entry) {
  QMenu* const submenu = menu.addMenu(EntryText(entry));
  Fill(*submenu, entry.entries);
  if (entry.entriesNow) {
    QObject::connect(submenu, &QMenu::aboutToShow, submenu, [submenu, entriesNow = entry.entriesNow] {
      submenu->clear();
      Fill(*submenu, entriesNow());
    });
  }
  return submenu->menuAction();
}

QAction* AddCommand(QMenu& menu, const MenuEntry& entry) {
  QAction* const action = menu.addAction(EntryText(entry));
  action->setCheckable(static_cast<bool>(entry.isChecked));
  QObject::connect(action, &QAction::triggered, &menu, [entry] { Run(entry); });
  return action;
}

void Fill(QMenu& menu, const std::vector<MenuEntry>& entries) {
  for (const MenuEntry& entry : entries) {
    if (entry.name == nullptr) {
      menu.addSeparator();
      continue;
    }
    const bool isSubmenu = entry.entriesNow || !entry.entries.empty();
    QAction* const action = isSubmenu ? AddSubmenu(menu, entry) : AddCommand(menu, entry);
    action->setObjectName(entry.name);
    Refresh(*action, entry);
    QObject::connect(&menu, &QMenu::aboutToShow, action, [action, entry] { Refresh(*action, entry); });
  }
}

}  // namespace

QString KeyNames(const Keys& keys) {
  QStringList names;
  for (const QKeySequence& key : keys) names.prepend(key.toString(QKeySequence::NativeText));
  return names.join(", ");
}

MenuBar::MenuBar(std::vector<MenuTable> menus, const QString& spokenName, QWidget* window)
    : QMenuBar(window), menus_(std::move(menus)) {
  setNativeMenuBar(false);  // the window leaves room for it
  NameControl(this, "menuBar", spokenName);
  for (const MenuTable& table : menus_) {
    QMenu* const menu = addMenu(QString(table.caption).replace('&', "&&"));
    menu->setObjectName(table.name);
    Fill(*menu, table.entries);
    OwnKeys(table.entries);
  }
  auto* const open = new QShortcut(Qt::Key_F10, this);
  connect(open, &QShortcut::activated, this, &MenuBar::OpenFirstMenu);
}

int MenuBar::Height() const {
  return sizeHint().height();
}

/// Qt would give the keyboard to the bar when Alt is pressed and released alone.
bool MenuBar::eventFilter(QObject* watched, QEvent* event) {
  return event->type() != QEvent::ShortcutOverride && QMenuBar::eventFilter(watched, event);
}

void MenuBar::OpenFirstMenu() {
  setActiveAction(actions().constFirst());
}

void MenuBar::OwnKeys(const std::vector<MenuEntry>& entries) {
  for (const MenuEntry& entry : entries) {
    OwnKeys(entry.entries);
    if (!entry.ownsKeys) continue;
    for (const QKeySequence& key : entry.keys) {
      auto* const shortcut = new QShortcut(key, this);
      shortcut->setContext(Qt::WindowShortcut);
      connect(shortcut, &QShortcut::activated, this, [entry] { Run(entry); });
    }
  }
}

}  // namespace quorvantis
