// SPDX-License-Identifier: MIT
#include "desktop/exchange/LossList.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "exchange/form/NoteGroups.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/NumberRanges.h"

#include <QHeaderView>
#include <QVBoxLayout>

namespace quorvantis {
namespace {

constexpr int kPlacesWidth = 18;  // average letters; longer lists of numbers are in the tooltip
constexpr int kFewestLines = 3;

}  // namespace

LossList::LossList(const StringTable& strings, QWidget* parent)
    : QWidget(parent), strings_(strings), heading_(new QLabel(this)), list_(new QTreeWidget(this)) {
  NameControl(heading_, "lossHeading", {});
  heading_->setTextFormat(Qt::PlainText);
  heading_->setWordWrap(true);
  heading_->setBuddy(list_);
  NameControl(list_, "losses", {});
  list_->setRootIsDecorated(false);
  list_->setWordWrap(true);
  list_->setTabKeyNavigation(false);
  list_->setHeaderLabels({ToQString(strings.Text(text_id::kExchangeLossPlaces)),
                          ToQString(strings.Text(text_id::kExchangeLossTexts))});
  list_->header()->resizeSection(0, list_->fontMetrics().averageCharWidth() * kPlacesWidth);
  list_->setMinimumHeight(list_->fontMetrics().lineSpacing() * kFewestLines);
  list_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(heading_);
  layout->addWidget(list_, 1);
}

void LossList::Show(const QString& heading, const std::vector<ExchangeNote>& notes) {
  heading_->setText(heading);
  list_->setAccessibleName(heading);
  list_->clear();
  QList<QTreeWidgetItem*> items;
  for (const NoteGroup& group : GroupNotes(notes, strings_)) {
    const bool isAboutAll = group.questions.empty();
    const QString places =
        ToQString(isAboutAll ? strings_.Text(text_id::kExchangeWhole) : NumberRanges(group.questions));
    auto* item = new QTreeWidgetItem({places, ToQString(group.text)});
    item->setToolTip(0, PlainTip(places));
    item->setToolTip(1, PlainTip(item->text(1)));
    items.append(item);
  }
  list_->addTopLevelItems(items);
  list_->setEnabled(!items.isEmpty());
}

}  // namespace quorvantis
