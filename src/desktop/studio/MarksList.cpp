// SPDX-License-Identifier: MIT
#include "desktop/studio/MarksList.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "learn/LearnedTexts.h"
#include "learn/StudyTexts.h"
#include "platform/TextNumbers.h"
#include "text/MessageText.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>

namespace quorvantis {
namespace {

constexpr int kMarksHeight = 96;  // pixels; more marks scroll

}  // namespace

MarksList::MarksList(const StringTable& strings, QWidget* parent)
    : QGroupBox(ToQString(strings.Text(text_id::kMarks)), parent),
      strings_(strings),
      area_(new QScrollArea(this)) {
  NameControl(this, "marks", title());
  area_->setWidgetResizable(true);
  area_->setFrameShape(QFrame::NoFrame);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 2, 4, 2);
  layout->addWidget(area_);
  setMaximumHeight(kMarksHeight);
  hide();
}

void MarksList::ShowStudy(const PaperStudy& study) {
  auto* rows = new QWidget;
  auto* layout = new QVBoxLayout(rows);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  for (std::size_t i = study.Marks().size(); i-- > 0;) layout->addWidget(MakeRow(study, i));
  layout->addStretch();
  area_->setWidget(rows);
  setVisible(!study.Marks().empty());
}

QWidget* MarksList::MakeRow(const PaperStudy& study, std::size_t index) {
  const PaperMark& mark = study.Marks()[index];
  const QString line =
      ToQString(FillMessage(strings_.Text(text_id::kMarkLine),
                            {ShortText(study.StudiedPaper(), mark.span), RoleName(mark.role, strings_)}));
  const auto& unfollowed = study.Learned().unfollowed;
  const bool isFollowed = std::find(unfollowed.begin(), unfollowed.end(), index) == unfollowed.end();
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* show = new QPushButton(QString(line).replace('&', "&&"), row);
  show->setFlat(true);
  show->setObjectName("mark" + QString::number(index));
  if (!isFollowed) show->setText(QStringLiteral("\u26A0 ") + show->text());
  auto* remove = new QToolButton(row);
  remove->setText(QStringLiteral("\u00D7"));
  remove->setObjectName("takeBack" + QString::number(index));
  remove->setToolTip(ToQString(strings_.Text(text_id::kTakeBackMark)));
  remove->setAccessibleName(remove->toolTip() + ' ' + line);
  connect(show, &QPushButton::clicked, this, [this, index] { emit Chosen(index); });
  // The row goes with the mark, so only once its button is done.
  connect(
      remove, &QToolButton::clicked, this, [this, index] { emit TakeBack(index); }, Qt::QueuedConnection);
  layout->addWidget(show);
  layout->addWidget(remove);
  layout->addStretch();
  return row;
}

}  // namespace quorvantis
