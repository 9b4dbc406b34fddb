// SPDX-License-Identifier: MIT
#include "desktop/bank/tags/BankTagChips.h"

#include "bank/tags/TagEntry.h"
#include "bank/tags/TypedTags.h"
#include "desktop/controls/Controls.h"
#include "desktop/controls/FlowLayout.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/BankTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>

#include <algorithm>
#include <optional>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kBetweenChips = 4;       // pixels
constexpr int kLineInLetters = 16;     // the width of the line
constexpr qsizetype kShownOfTag = 40;  // UTF-16 units
constexpr const char* kTagProperty = "tag";
constexpr QChar kCross(0xD7);

/// Keeps a tag in its own direction, and shows its ends.
QString ShortTag(const std::u16string& tag) {
  QString text = ToQString(tag);
  if (text.size() > kShownOfTag) text = text.left(kShownOfTag - 1) + QChar(0x2026);
  return QChar(0x2068) + text + QChar(0x2069);
}

}  // namespace

BankTagChips::BankTagChips(const StringTable& strings, QWidget* parent)
    : QWidget(parent),
      strings_(strings),
      row_(new FlowLayout(kBetweenChips, this)),
      label_(MakeLabel(this, "bankTagLabel", ToQString(strings.Text(text_id::kBankTags)))),
      line_(new QLineEdit(this)),
      undo_(new QPushButton(this)) {
  MakeLine();
  NameControl(undo_, "bankTagUndo", {});
  undo_->setAutoDefault(false);
  undo_->hide();
  connect(undo_, &QPushButton::clicked, this, &BankTagChips::UndoWished);
  PlaceAll();
}

void BankTagChips::MakeLine() {
  NameControl(line_, "bankTagAdd", ToQString(strings_.Text(text_id::kBankAddTag)));
  line_->setPlaceholderText(ToQString(strings_.Text(text_id::kBankAddTag)));
  line_->setMinimumWidth(line_->fontMetrics().averageCharWidth() * kLineInLetters);
  line_->installEventFilter(this);
  auto* completer = new QCompleter(&proposals_, line_);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setFilterMode(Qt::MatchContains);
  line_->setCompleter(completer);
  // Queued: the list of proposals writes into the line once more after it was taken.
  connect(line_, &QLineEdit::returnPressed, this, &BankTagChips::TakeTyped, Qt::QueuedConnection);
  connect(completer, qOverload<const QString&>(&QCompleter::activated), this, &BankTagChips::TakeTyped,
          Qt::QueuedConnection);
  connect(line_, &QLineEdit::textEdited, this, [this](const QString& typed) {
    if (TypedTagsIn(FromQString(typed)).size() > 1) TakeTyped();
  });
}

QToolButton* BankTagChips::MakeChip(const ShownTag& shown, std::size_t questions) {
  const QString tag = ToQString(shown.tag);
  QString caption = ShortTag(shown.tag);
  if (shown.questions < questions) {
    caption = ToQString(FillMessage(strings_.Text(text_id::kBankSomeHaveTag),
                                    {FromQString(caption), FormatInteger(static_cast<int>(shown.questions)),
                                     FormatInteger(static_cast<int>(questions))}));
  }
  auto* chip = new QToolButton(this);
  const QString spoken = ToQString(FillMessage(strings_.Text(text_id::kBankRemoveTag), {shown.tag}));
  NameControl(chip, "bankTag", spoken);
  chip->setProperty(kTagProperty, tag);
  chip->setText(caption.replace('&', "&&") + ' ' + kCross);
  chip->setToolTip(PlainTip(spoken));
  chip->setFocusPolicy(chips_.isEmpty() ? Qt::StrongFocus : Qt::ClickFocus);
  chip->installEventFilter(this);
  connect(chip, &QToolButton::clicked, this, [this, chip] { Remove(*chip); });
  return chip;
}

void BankTagChips::Show(const std::vector<ShownTag>& tags, std::size_t questions, bool canHaveTags) {
  const int text = questions > 1 ? text_id::kBankTagsOfMany : text_id::kBankTags;
  label_->setText(ToQString(FillMessage(strings_.Text(text), {FormatInteger(static_cast<int>(questions))})));
  line_->setEnabled(questions > 0 && canHaveTags);
  const int hint = questions > 0 && !canHaveTags ? text_id::kBankNoContentNoTags : text_id::kBankAddTag;
  line_->setPlaceholderText(ToQString(strings_.Text(hint)));
  if (tags != shown_ || questions != questions_) RenewChips(tags, questions);
}

/// The focus stays at its tag, or goes to the line if that is gone.
void BankTagChips::RenewChips(const std::vector<ShownTag>& tags, std::size_t questions) {
  std::optional<QVariant> focused;
  for (QToolButton* chip : std::exchange(chips_, {})) {
    if (chip->hasFocus()) focused = chip->property(kTagProperty);
    chip->hide();
    chip->deleteLater();  // it may be what was clicked
  }
  for (const ShownTag& tag : tags) chips_.append(MakeChip(tag, questions));
  shown_ = tags;
  questions_ = questions;
  PlaceAll();
  if (!focused) return;
  const auto same = std::find_if(chips_.begin(), chips_.end(), [&focused](const QToolButton* chip) {
    return chip->property(kTagProperty) == *focused;
  });
  same == chips_.end() ? line_->setFocus() : (*same)->setFocus();
}

void BankTagChips::PlaceAll() {
  while (QLayoutItem* item = row_->takeAt(0)) delete item;
  row_->addWidget(label_);
  for (QToolButton* chip : chips_) {
    row_->addWidget(chip);
    chip->show();
  }
  row_->addWidget(line_);
  row_->addWidget(undo_);
  QWidget* before = line_;
  for (QToolButton* chip : chips_) {
    setTabOrder(before, chip);
    before = chip;
  }
  setTabOrder(before, undo_);
  row_->invalidate();
}

void BankTagChips::Propose(const std::vector<std::u16string>& tags) {
  QStringList list;
  list.reserve(static_cast<qsizetype>(tags.size()));
  for (const std::u16string& tag : tags) list.append(ToQString(tag));
  if (list == proposals_.stringList()) return;
  proposals_.setStringList(list);  // closes the list of proposals
  if (!line_->hasFocus() || line_->text().isEmpty()) return;
  line_->completer()->setCompletionPrefix(line_->text());
  line_->completer()->complete();
}

void BankTagChips::OfferUndo(const QString& caption, const QString& tip) {
  undo_->setText(QString(caption).replace('&', "&&"));
  undo_->setAccessibleName(caption);
  undo_->setToolTip(PlainTip(tip));
  undo_->setVisible(!caption.isEmpty());
}

/// What is too long stays in the line.
void BankTagChips::TakeTyped() {
  std::vector<std::u16string> tags;
  bool isTooLong = false;
  const std::u16string typed = FromQString(line_->text());
  for (const TextSpan& place : TypedTagsIn(typed)) {
    const std::u16string_view tag = TypedTag(place.Of(typed));
    const auto clean = CleanTag(tag);
    if (clean) tags.push_back(*clean);
    isTooLong |= !clean && !tag.empty();
  }
  emit TooLongChanged(isTooLong);
  if (isTooLong) return;
  line_->setText({});  // unlike clear(), leaves nothing for the line's own undo
  if (!tags.empty()) emit Added(tags);
}

void BankTagChips::Remove(const QToolButton& chip) {
  emit Removed(FromQString(chip.property(kTagProperty).toString()));
}

bool BankTagChips::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn && watched == line_) emit Entered();
  if (event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent&>(*event).matches(QKeySequence::Undo)) {
    event->accept();  // what is undone here is not a step of the exam
    return true;
  }
  const bool isKey = event->type() == QEvent::KeyPress;
  return (isKey && ObeyKey(watched, static_cast<QKeyEvent&>(*event))) || QWidget::eventFilter(watched, event);
}

bool BankTagChips::ObeyKey(QObject* watched, const QKeyEvent& key) {
  auto* chip = qobject_cast<QToolButton*>(watched);
  if (chip == nullptr && !line_->text().isEmpty()) return false;
  if (key.matches(QKeySequence::Undo)) {
    emit UndoWished();
    return true;
  }
  return chip == nullptr ? ObeyKeyInLine(key) : ObeyKeyAtChip(*chip, key);
}

bool BankTagChips::ObeyKeyInLine(const QKeyEvent& key) {
  const int back = layoutDirection() == Qt::RightToLeft ? Qt::Key_Right : Qt::Key_Left;
  if (chips_.isEmpty() || (key.key() != back && key.key() != Qt::Key_Backspace)) return false;
  chips_.last()->setFocus();
  return true;
}

bool BankTagChips::ObeyKeyAtChip(QToolButton& chip, const QKeyEvent& key) {
  const bool isMirrored = layoutDirection() == Qt::RightToLeft;
  const qsizetype at = chips_.indexOf(&chip);
  switch (key.key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Remove(chip);
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right: {
      const qsizetype next = (key.key() == Qt::Key_Right) != isMirrored ? at + 1 : at - 1;
      QWidget* to = next == chips_.size() ? static_cast<QWidget*>(line_) : chips_.value(next);
      if (to != nullptr) to->setFocus();
      return true;
    }
    default:
      return false;
  }
}

}  // namespace quorvantis
