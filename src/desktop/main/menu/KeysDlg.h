// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/main/menu/MenuBar.h"
#include "platform/StringTable.h"

#include <QDialog>
#include <QTreeWidget>

#include <vector>

namespace quorvantis {

/// The keys of the main window, menu by menu: a list that may stay open beside it, and deletes itself when it
/// is closed.
class KeysDlg final : public QDialog {
  Q_OBJECT

 public:
  KeysDlg(const std::vector<MenuTable>& menus, const StringTable& strings, QWidget* parent);

 private:
  QTreeWidgetItem* AddHeading(const QString& caption);
  void AddEntries(QTreeWidgetItem& heading, const QString& before, const std::vector<MenuEntry>& entries);

  QTreeWidget* list_;
};

}  // namespace quorvantis
