// SPDX-License-Identifier: MIT
#include "desktop/main/menu/KeysDlg.h"

#include "desktop/controls/QtText.h"
#include "platform/texts/MenuTexts.h"

#include <QHeaderView>
#include <QVBoxLayout>

namespace quorvantis {
namespace {

constexpr QSize kListSize(520, 560);  // pixels
constexpr int kCommandWidth = 300;

/// The keys that are in no menu.
struct OtherKey {
  int text;
  Qt::Key key;
};
constexpr OtherKey kOtherKeys[] = {
    {text_id::kMenuBar, Qt::Key_F10},
    {text_id::kRemoveSelected, Qt::Key_Delete},
    {text_id::kLeaveUnasked, Qt::Key_Escape},
};

}  // namespace

KeysDlg::KeysDlg(const std::vector<MenuTable>& menus, const StringTable& strings, QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      list_(new QTreeWidget(this)) {
  const auto text = [&strings](int id) { return ToQString(strings.Text(id)); };
  setObjectName("keys");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(text(text_id::kKeys));
  NameControl(list_, "keyList", text(text_id::kKeys));
  list_->setHeaderLabels({text(text_id::kCommandColumn), text(text_id::kKeysColumn)});
  list_->setRootIsDecorated(false);
  list_->setItemsExpandable(false);
  for (const MenuTable& menu : menus) AddEntries(*AddHeading(menu.caption), {}, menu.entries);
  QTreeWidgetItem* const others = AddHeading({});
  for (const OtherKey& other : kOtherKeys) {
    new QTreeWidgetItem(others, {text(other.text), KeyNames({QKeySequence(other.key)})});
  }
  list_->expandAll();
  list_->header()->resizeSection(0, kCommandWidth);
  list_->setCurrentItem(list_->topLevelItem(0));
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(list_);
  resize(kListSize);
}

QTreeWidgetItem* KeysDlg::AddHeading(const QString& caption) {
  auto* const heading = new QTreeWidgetItem(list_, {caption});
  QFont bold = list_->font();
  bold.setBold(true);
  heading->setFont(0, bold);
  heading->setFirstColumnSpanned(true);
  return heading;
}

void KeysDlg::AddEntries(QTreeWidgetItem& heading, const QString& before,
                         const std::vector<MenuEntry>& entries) {
  for (const MenuEntry& entry : entries) {
    if (!entry.entries.empty()) AddEntries(heading, entry.caption + QStringLiteral(" › "), entry.entries);
    if (!entry.keys.isEmpty()) new QTreeWidgetItem(&heading, {before + entry.caption, KeyNames(entry.keys)});
  }
}

}  // namespace quorvantis
