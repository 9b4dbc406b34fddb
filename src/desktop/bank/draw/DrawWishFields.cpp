// SPDX-License-Identifier: MIT
#include "desktop/bank/draw/DrawWishFields.h"

#include "desktop/bank/draw/TagCompleter.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/KindCaption.h"
#include "desktop/controls/QtText.h"
#include "model/ExamLimits.h"
#include "model/QuestionKinds.h"
#include "platform/texts/DrawTexts.h"

#include <QBoxLayout>
#include <QScrollBar>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kRowsSeen = 4;
constexpr int kMostTyped = 1000;  // UTF-16 units of a list of tags

struct Heading {
  int text;
  int stretch;
};

constexpr Heading kHeadings[] = {{text_id::kDrawHowMany, 0},
                                 {text_id::kDrawKind, 0},
                                 {text_id::kDrawTags, 1},
                                 {text_id::kDrawWithout, 1},
                                 {text_id::kDrawSpread, 1}};

constexpr const char* kFieldNames[] = {"drawCount",   "drawKind",   "drawTags",
                                       "drawWithout", "drawSpread", "drawRemoveWish"};

}  // namespace

DrawWishFields::DrawWishFields(const StringTable& strings, QWidget* parent)
    : QWidget(parent),
      strings_(strings),
      content_(new QWidget(this)),
      area_(new QScrollArea(this)),
      grid_(new QGridLayout(content_)),
      add_(new QPushButton(Text(text_id::kDrawAddWish), this)) {
  grid_->setContentsMargins(0, 0, 0, 0);
  AddHeadings();
  area_->setWidget(content_);
  area_->setWidgetResizable(true);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  NameControl(add_, "drawAddWish", add_->text());
  add_->setAutoDefault(false);
  connect(add_, &QPushButton::clicked, this, &DrawWishFields::AddAnother);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(area_);
  layout->addWidget(add_, 0, Qt::AlignLeading);
}

void DrawWishFields::AddHeadings() {
  int column = 0;
  for (const Heading& heading : kHeadings) {
    grid_->addWidget(MakeLabel(content_, "drawHeading", Text(heading.text)), 0, column);
    grid_->setColumnStretch(column++, heading.stretch);
  }
}

void DrawWishFields::Show(const std::vector<TypedWish>& wishes) {
  for (const Row& row : rows_) Discard(row);
  rows_.clear();
  for (const TypedWish& wish : wishes) Add(wish);
  RowsChanged();
}

std::vector<TypedWish> DrawWishFields::Typed() const {
  std::vector<TypedWish> wishes;
  wishes.reserve(rows_.size());
  for (const Row& row : rows_)
    wishes.push_back({row.count->value(), row.kind->currentData().toInt(), FromQString(row.tags->text()),
                      FromQString(row.withoutTags->text()), FromQString(row.spreadOver->text())});
  return wishes;
}

void DrawWishFields::Begin() {
  rows_.front().count->setFocus();
  rows_.front().count->selectAll();
}

void DrawWishFields::Offer(QStringList tags) {
  tags_ = std::move(tags);
  for (const Row& row : rows_) Complete(row);
}

void DrawWishFields::Complete(const Row& row) const {
  for (QLineEdit* line : {row.tags, row.withoutTags, row.spreadOver})
    line->setCompleter(new TagCompleter(tags_, line));
}

QLineEdit* DrawWishFields::MakeTags(const std::u16string& typed, int tip) {
  auto* line = new QLineEdit(ToQString(typed), content_);
  line->setMaxLength(kMostTyped);
  line->setToolTip(PlainTip(Text(tip)));
  return line;
}

DrawWishFields::Row DrawWishFields::MakeRow(const TypedWish& wish) {
  const Row row{new QSpinBox(content_),
                new QComboBox(content_),
                MakeTags(wish.tags, text_id::kDrawTagsTip),
                MakeTags(wish.withoutTags, text_id::kDrawTagsTip),
                MakeTags(wish.spreadOver, text_id::kDrawSpreadTip),
                new QToolButton(content_)};
  row.count->setRange(1, kMaxQuestions);
  row.count->setValue(wish.count);
  row.kind->addItem(Text(text_id::kDrawAnyKind), -1);
  for (const KindRow& kind : kQuestionKinds)
    row.kind->addItem(KindCaption(kind.kind, strings_), static_cast<int>(kind.kind));
  row.kind->setCurrentIndex(std::max(row.kind->findData(wish.kind), 0));
  row.remove->setText(QChar(0x2715));
  row.remove->setToolTip(PlainTip(Text(text_id::kDrawRemoveWish)));
  return row;
}

void DrawWishFields::Add(const TypedWish& wish) {
  const Row row = MakeRow(wish);
  Complete(row);
  connect(row.remove, &QToolButton::clicked, this, [this, button = row.remove] { Remove(button); });
  int column = 0;
  for (QWidget* field : row.Fields()) {
    grid_->addWidget(field, nextLine_, column++);
    field->show();
  }
  ++nextLine_;
  rows_.push_back(row);
}

/// The new wish is mostly for another kind or other tags, so it begins empty.
void DrawWishFields::AddAnother() {
  if (rows_.size() == TypedDraw::kMostWishes) return;
  Add({});
  RowsChanged();
  rows_.back().count->setFocus();
  area_->verticalScrollBar()->setValue(area_->verticalScrollBar()->maximum());
}

void DrawWishFields::Remove(const QToolButton* button) {
  const auto row =
      std::find_if(rows_.begin(), rows_.end(), [button](const Row& each) { return each.remove == button; });
  if (row == rows_.end() || rows_.size() == 1) return;
  const auto place = static_cast<std::size_t>(row - rows_.begin());
  Discard(*row);
  rows_.erase(row);
  RowsChanged();
  rows_[std::min(place, rows_.size() - 1)].count->setFocus();
}

/// The button of the row may be the one that was pressed, so it goes later.
void DrawWishFields::Discard(const Row& row) {
  for (QWidget* field : row.Fields()) {
    grid_->removeWidget(field);
    field->setObjectName({});
    field->hide();
    field->deleteLater();
  }
}

/// Names the fields by their rows, puts them in the order of the Tab key, and makes room for them.
void DrawWishFields::RowsChanged() {
  QWidget* before = area_;  // itself no place to stop at
  area_->setFocusPolicy(Qt::StrongFocus);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    int column = 0;
    for (QWidget* field : rows_[i].Fields()) {
      const std::string name = kFieldNames[column] + std::to_string(i + 1);
      const bool isField = field != rows_[i].remove;
      NameControl(field, name.c_str(), Text(isField ? kHeadings[column].text : text_id::kDrawRemoveWish));
      setTabOrder(before, field);
      before = field;
      ++column;
    }
    rows_[i].remove->setEnabled(rows_.size() > 1);
  }
  setTabOrder(before, add_);
  area_->setFocusPolicy(Qt::NoFocus);
  add_->setEnabled(rows_.size() < TypedDraw::kMostWishes);
  const int line = rows_.front().count->sizeHint().height() + grid_->verticalSpacing();
  const int unseen = std::max(0, static_cast<int>(rows_.size()) - kRowsSeen);
  grid_->activate();
  area_->setFixedHeight(grid_->sizeHint().height() - unseen * line);
}

QString DrawWishFields::Text(int number) const {
  return ToQString(strings_.Text(number));
}

}  // namespace quorvantis
