// SPDX-License-Identifier: MIT
#include "desktop/studio/MarksList.h"

#include "desktop/controls/Controls.h"
#include "desktop/controls/QtText.h"
#include "learn/LearnedTexts.h"
#include "learn/StudyTexts.h"
#include "platform/texts/StudioTexts.h"
#include "text/MessageText.h"

#include <QApplication>
#include <QLabel>

#include <algorithm>

namespace quorvantis {
namespace {

constexpr int kMarksHeight = 120;  // pixels; more marks scroll; likewise:
constexpr int kHeightInSmallWindows = 64;
constexpr int kReasonIndent = 24;  // pixels

QLabel* WrappedLabel(const QString& text) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

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
  SetCompact(false);
  hide();
}

void MarksList::SetCompact(bool isCompact) {
  setMaximumHeight(isCompact ? kHeightInSmallWindows : kMarksHeight);
  setTitle(isCompact ? QString() : accessibleName());
}

void MarksList::ShowStudy(const PaperStudy& study,
                          const std::optional<std::vector<UnfollowedMark>>& reasons) {
  reasons_ = reasons;
  const QWidget* focus = QApplication::focusWidget();
  const QString focused = focus != nullptr && isAncestorOf(focus) ? focus->objectName() : QString();
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  if (study.HasOwnRules()) rows->addWidget(WrappedLabel(ToQString(strings_.Text(text_id::kMarksNotUsed))));
  for (std::size_t i = study.Marks().size(); i-- > 0;) AddRow(*rows, study, i);
  rows->addStretch();
  area_->setWidget(content);
  setVisible(!study.Marks().empty());
  if (auto* again = focused.isEmpty() ? nullptr : findChild<QWidget*>(focused)) again->setFocus();
}

/// Empty for a mark that is followed.
QString MarksList::ReasonOf(const PaperStudy& study, std::size_t index) const {
  const auto& unfollowed = study.Learned().unfollowed;
  if (std::find(unfollowed.begin(), unfollowed.end(), index) == unfollowed.end()) return {};
  if (!reasons_) return ToQString(strings_.Text(text_id::kMarkReasonComes));
  const auto reason = std::find_if(reasons_->begin(), reasons_->end(),
                                   [index](const UnfollowedMark& mark) { return mark.mark == index; });
  if (reason == reasons_->end()) return ToQString(strings_.Text(text_id::kMarkWithoutRule));
  return ToQString(ReasonText(*reason, study.StudiedPaper(), study.Marks(), strings_));
}

void MarksList::AddRow(QBoxLayout& rows, const PaperStudy& study, std::size_t index) {
  const PaperMark& mark = study.Marks()[index];
  const QString line =
      ToQString(FillMessage(strings_.Text(text_id::kMarkLine),
                            {ShortText(study.StudiedPaper(), mark.span), RoleName(mark.role, strings_)}));
  const QString reason = ReasonOf(study, index);
  auto* row = new QHBoxLayout;
  row->addWidget(MakeMark(line, reason, index));
  row->addWidget(MakeTakeBack(line, index));
  row->addStretch();
  rows.addLayout(row);
  if (reason.isEmpty()) return;
  QLabel* why = WrappedLabel(reason);
  why->setObjectName("whyNot" + QString::number(index));
  why->setIndent(kReasonIndent);
  rows.addWidget(why);
}

QPushButton* MarksList::MakeMark(const QString& line, const QString& reason, std::size_t index) {
  auto* show = new QPushButton(QString(line).replace('&', "&&"));
  show->setFlat(true);
  show->setObjectName("mark" + QString::number(index));
  show->setAccessibleDescription(reason);
  if (!reason.isEmpty()) {
    show->setText(QStringLiteral("\u26A0 ") + show->text());
    show->setToolTip(PlainTip(reason));
  }
  connect(show, &QPushButton::clicked, this, [this, index] { emit Chosen(index); });
  return show;
}

QToolButton* MarksList::MakeTakeBack(const QString& line, std::size_t index) {
  auto* remove = new QToolButton;
  remove->setText(QStringLiteral("\u00D7"));
  remove->setObjectName("takeBack" + QString::number(index));
  remove->setToolTip(ToQString(strings_.Text(text_id::kTakeBackMark)));
  remove->setAccessibleName(remove->toolTip() + ' ' + line);
  // The row goes with the mark, so only once its button is done.
  connect(
      remove, &QToolButton::clicked, this, [this, index] { emit TakeBack(index); }, Qt::QueuedConnection);
  return remove;
}

}  // namespace quorvantis
