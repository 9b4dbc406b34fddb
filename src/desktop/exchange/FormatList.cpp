// SPDX-License-Identifier: MIT
#include "desktop/exchange/FormatList.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/Utf.h"

#include <QHeaderView>

#include <algorithm>
#include <vector>

namespace quorvantis {
namespace {

/// In the order of the rows.
std::vector<const FormatRow*> WritableRows() {
  std::vector<const FormatRow*> rows;
  for (const FormatRow& format : Formats()) {
    if (format.writer != nullptr) rows.push_back(&format);
  }
  return rows;
}

}  // namespace

FormatList::FormatList(const StringTable& strings, QWidget* parent) : QTreeWidget(parent) {
  const QString heading = ToQString(strings.Text(text_id::kExchangeFormat));
  NameControl(this, "exportFormats", heading);
  setRootIsDecorated(false);
  setWordWrap(true);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setHeaderLabels({heading, ToQString(strings.Text(text_id::kExchangePurpose))});
  for (const FormatRow* format : WritableRows()) {
    const QString title = ToQString(strings.Text(format->title));
    const QString purpose = ToQString(strings.Text(format->purpose));
    auto* item = new QTreeWidgetItem(this, {title, purpose});
    item->setData(0, Qt::AccessibleTextRole, QString(title + QStringLiteral(". ") + purpose));
    item->setToolTip(1, PlainTip(purpose));
  }
  resizeColumnToContents(0);
  setSizeAdjustPolicy(AdjustToContents);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  Choose({});
  connect(this, &QTreeWidget::currentItemChanged, this, &FormatList::Changed);
}

void FormatList::Choose(const std::u16string& name) {
  const std::vector<const FormatRow*> rows = WritableRows();
  const auto found = std::ranges::find(rows, FormatNamed(Utf16ToUtf8(name)));
  setCurrentItem(topLevelItem(found == rows.end() ? 0 : static_cast<int>(found - rows.begin())));
}

const FormatRow& FormatList::Chosen() const {
  const std::vector<const FormatRow*> rows = WritableRows();
  const FormatRow* const chosen = rows[static_cast<std::size_t>(indexOfTopLevelItem(currentItem()))];
  return *chosen;
}

}  // namespace quorvantis
