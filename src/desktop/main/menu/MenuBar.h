// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/Controls.h"

#include <QMenu>
#include <QMenuBar>

#include <functional>
#include <vector>

namespace quorvantis {

/// One line of a menu: a command, a submenu, or a separator if it has no name. What depends on the state of
/// the program is asked each time that the menu opens.
struct MenuEntry {
  const char* name = nullptr;  ///< object name of the action, the same in every language
  QString caption = {};
  Keys keys = {};         ///< shown beside the caption
  bool ownsKeys = false;  ///< the menu bar makes the keys work; otherwise a control or a field does
  std::function<void()> command = {};
  std::function<bool()> canAct = {};                        ///< empty: always
  std::function<bool()> isChecked = {};                     ///< empty: the entry has no check mark
  std::function<QString()> captionNow = {};                 ///< instead of `caption`
  std::vector<MenuEntry> entries = {};                      ///< of a submenu
  std::function<std::vector<MenuEntry>()> entriesNow = {};  ///< of a submenu that changes
};

/// A menu of the bar.
struct MenuTable {
  const char* name;
  QString caption;
  std::vector<MenuEntry> entries;
};

/// The menu bar of a window, made from tables. F10 opens it; pressing Alt alone does not, since Alt and a
/// letter press the buttons of the window. Captions have no mnemonics for the same reason.
class MenuBar final : public QMenuBar {
  Q_OBJECT

 public:
  /// `spokenName` is for screen readers.
  MenuBar(std::vector<MenuTable> menus, const QString& spokenName, QWidget* window);

  const std::vector<MenuTable>& Menus() const { return menus_; }

  /// The height that the bar takes from its window, in pixels.
  int Height() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void OpenFirstMenu();
  void OwnKeys(const std::vector<MenuEntry>& entries);

  const std::vector<MenuTable> menus_;
};

/// Keys as users read them, the first one last: a control's first key is Alt and a letter.
QString KeyNames(const Keys& keys);

}  // namespace quorvantis
