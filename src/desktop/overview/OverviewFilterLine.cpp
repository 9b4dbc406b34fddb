// SPDX-License-Identifier: MIT
#include "desktop/overview/OverviewFilterLine.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/KindCaption.h"
#include "desktop/controls/QtText.h"
#include "model/QuestionKinds.h"
#include "platform/texts/OverviewTexts.h"

#include <QHBoxLayout>

namespace quorvantis {

OverviewFilterLine::OverviewFilterLine(const StringTable& strings, QWidget* parent)
    : QWidget(parent),
      text_(new QLineEdit(this)),
      kind_(new QComboBox(this)),
      withoutKey_(new QCheckBox(ToQString(strings.Text(text_id::kWithoutKey)), this)),
      withFiles_(new QCheckBox(ToQString(strings.Text(text_id::kWithFiles)), this)) {
  text_->setPlaceholderText(ToQString(strings.Text(text_id::kFilterText)));
  text_->setClearButtonEnabled(true);
  kind_->addItem(ToQString(strings.Text(text_id::kAllKinds)), -1);
  for (const KindRow& row : kQuestionKinds)
    kind_->addItem(KindCaption(row.kind, strings), static_cast<int>(row.kind));
  NameControl(text_, "filterText", text_->placeholderText());
  NameControl(kind_, "filterKind", ToQString(strings.Text(text_id::kColumnKind)));
  NameControl(withoutKey_, "filterWithoutKey", withoutKey_->text());
  NameControl(withFiles_, "filterWithFiles", withFiles_->text());
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text_, 1);
  layout->addWidget(kind_);
  layout->addWidget(withoutKey_);
  layout->addWidget(withFiles_);
  connect(text_, &QLineEdit::textChanged, this, &OverviewFilterLine::Changed);
  connect(kind_, &QComboBox::currentIndexChanged, this, &OverviewFilterLine::Changed);
  connect(withoutKey_, &QCheckBox::toggled, this, &OverviewFilterLine::Changed);
  connect(withFiles_, &QCheckBox::toggled, this, &OverviewFilterLine::Changed);
}

OverviewFilter OverviewFilterLine::Filter() const {
  OverviewFilter filter{FromQString(text_->text())};
  if (const int kind = kind_->currentData().toInt(); kind >= 0) filter.kind = static_cast<QuestionKind>(kind);
  filter.withoutKey = withoutKey_->isChecked();
  filter.withFiles = withFiles_->isChecked();
  return filter;
}

void OverviewFilterLine::FocusText() {
  text_->setFocus();
  text_->selectAll();
}

}  // namespace quorvantis
