// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/ExamField.h"

#include <QPlainTextEdit>

namespace quorvantis {

/// A text field of several lines. Tab leaves it, so that the keyboard reaches every control. Page Up and Page
/// Down move between questions from here as from everywhere, except while the field holds more text than it
/// shows: then they scroll, and do nothing on the first and last page, so that scrolling never ends in
/// another question.
class MultiLineField : public QPlainTextEdit, public ExamField {
  Q_OBJECT

 public:
  MultiLineField(QuestionEditor& editor, const StringTable& strings, FormField field, QWidget* parent);

 signals:
  /// The field shows a refused text; it is corrected after the event.
  void Overran();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;
  QMimeData* createMimeDataFromSelection() const override;

  void ShowAnew(const std::u16string& shown) override;
  void ShowChange(const TextChange& change, const std::u16string& shown) override;
  void SelectShown(int start, int end) override;
  void Tell(const std::u16string& message) override;

 private:
  bool ScrollsWith(const QKeyEvent& event) const;
  bool RefusesInsertion(const QString& inserted, int offset = 0, int replaced = 0);
  void TakeContents();
  void AlignText(const QString& content);
  void Restore();

  bool refused_ = false;  ///< the last insertion was refused
};

}  // namespace quorvantis
