// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StringTable.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringListModel>
#include <QToolButton>
#include <QWidget>

#include <cstddef>
#include <string>
#include <vector>

namespace quorvantis {

class FlowLayout;

/// A tag of the chosen questions.
struct ShownTag {
  std::u16string tag;
  std::size_t questions = 0;  ///< that have it

  friend bool operator==(const ShownTag&, const ShownTag&) = default;
};

/// Tags as buttons that remove them, a line to add others, and a button to take the last change back. From
/// the line, Backspace or an arrow leads to the last tag; there the arrows lead on, and Delete removes it.
class BankTagChips : public QWidget {
  Q_OBJECT

 public:
  /// `strings` must outlive the widget.
  BankTagChips(const StringTable& strings, QWidget* parent);

  /// `questions` are chosen: without any, or if they cannot have tags, the line cannot be used. What is shown
  /// already stays as it is, so that no key meets another tag.
  void Show(const std::vector<ShownTag>& tags, std::size_t questions, bool canHaveTags);

  /// What the line proposes.
  void Propose(const std::vector<std::u16string>& tags);

  /// What can be taken back, as a caption and a longer text; none if it is empty.
  void OfferUndo(const QString& caption, const QString& tip);

 signals:
  void Added(const std::vector<std::u16string>& tags);
  void Removed(const std::u16string& tag);
  void UndoWished();
  /// The user begins to add tags.
  void Entered();
  /// What was typed is too long to be a tag, or no longer so.
  void TooLongChanged(bool isTooLong);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeLine();
  void RenewChips(const std::vector<ShownTag>& tags, std::size_t questions);
  QToolButton* MakeChip(const ShownTag& shown, std::size_t questions);
  void PlaceAll();
  void TakeTyped();
  bool ObeyKey(QObject* watched, const class QKeyEvent& key);
  bool ObeyKeyInLine(const QKeyEvent& key);
  bool ObeyKeyAtChip(QToolButton& chip, const QKeyEvent& key);
  void Remove(const QToolButton& chip);

  const StringTable& strings_;
  FlowLayout* row_;
  QLabel* label_;
  std::vector<ShownTag> shown_;
  std::size_t questions_ = 0;  ///< that are chosen
  QList<QToolButton*> chips_;  ///< one a tag
  QLineEdit* line_;
  QPushButton* undo_;
  QStringListModel proposals_;
};

}  // namespace quorvantis
