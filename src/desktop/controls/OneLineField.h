// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/ExamField.h"

#include <QLineEdit>

namespace quorvantis {

/// A text field of one line: the exam's title and the fill-in answers.
class OneLineField : public QLineEdit, public ExamField {
  Q_OBJECT

 public:
  OneLineField(QuestionEditor& editor, const StringTable& strings, FormField field, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

  void ShowAnew(const std::u16string& shown) override;
  void ShowChange(const TextChange& change, const std::u16string& shown) override;
  void SelectShown(int start, int end) override;
  void Tell(const std::u16string& message) override;

 private:
  class Gate;

  bool Takes(const QString& content, int cursor);

  bool refused_ = false;  ///< the last change was refused
};

}  // namespace quorvantis
