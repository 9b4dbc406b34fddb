// SPDX-License-Identifier: MIT
#include "desktop/search/ReplaceAllDlg.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/OverviewTexts.h"
#include "platform/texts/SearchTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

#include <utility>

namespace quorvantis {
namespace {

constexpr QSize kReplaceAllSize(820, 460);  // pixels

}  // namespace

ReplaceAllDlg::ReplaceAllDlg(std::shared_ptr<const FrameSetExam> exam,
                             std::vector<PlannedReplacement> planned, const StringTable& strings,
                             QWidget* parent)
    : QDialog(parent),
      strings_(strings),
      list_(std::move(exam), std::move(planned), strings, nullptr),
      table_(new HitTable(list_, ReplacementList::kBefore, this)),
      all_(new QCheckBox(ToQString(strings.Text(text_id::kTickAll)), this)),
      replace_(new QPushButton(this)) {
  setObjectName("replaceAllList");
  setWindowTitle(ToQString(strings.Text(text_id::kReplaceAll)).remove(u'\u2026'));
  NameControl(table_, "replacements", windowTitle());
  NameControl(all_, "tickAll", all_->text());
  replace_->setObjectName("replaceTicked");
  auto* cancel = new QPushButton(ToQString(strings.Text(text_id::kCancelSearch)), this);
  cancel->setObjectName("cancelReplacing");
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(all_);
  buttons->addStretch();
  buttons->addWidget(replace_);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(table_);
  layout->addLayout(buttons);
  connect(all_, &QCheckBox::clicked, this, [this] { list_.TickAll(list_.Ticked() < list_.Possible()); });
  connect(&list_, &ReplacementList::TicksChanged, this, &ReplaceAllDlg::ShowTicks);
  connect(table_, &HitTable::RowChosen, replace_, [this] { replace_->click(); });
  connect(replace_, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  replace_->setDefault(true);
  table_->setCurrentIndex(list_.index(0, 0));
  table_->setFocus();
  ShowTicks();
  resize(kReplaceAllSize.boundedTo(screen()->availableSize()));
}

void ReplaceAllDlg::ShowTicks() {
  const std::u16string count = FormatInteger(list_.Ticked());
  const QString caption = ToQString(FillMessage(strings_.Text(text_id::kReplaceTicked), {count}));
  replace_->setText(caption);
  replace_->setAccessibleName(caption);
  replace_->setEnabled(list_.Ticked() > 0);
  all_->setEnabled(list_.Possible() > 0);
  all_->setCheckState(list_.Ticked() == 0                  ? Qt::Unchecked
                      : list_.Ticked() == list_.Possible() ? Qt::Checked
                                                           : Qt::PartiallyChecked);
}

}  // namespace quorvantis
